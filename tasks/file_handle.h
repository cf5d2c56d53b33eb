// A run-time library stream that closes itself.
#pragma once

#include <cstdio>
#include <memory>

struct FileCloser {
  void operator()(FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<FILE, FileCloser>;
