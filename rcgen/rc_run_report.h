// What a generation or stamping run did: the files it wrote and the failures it met.
#pragma once

#include <string>
#include <vector>

struct RcRunReport {
  std::vector<std::string> written;  // full paths, in the order written
  std::vector<std::string> errors;   // one message per failure, naming the path
};
