// Feeds arbitrary bytes to the project file reader and reads every option of what it accepts.
#include <cstddef>
#include <cstdint>
#include <string>

#include "cli/kpj_project.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  KpjProject project;
  std::string err;
  if (!project.parse("fuzz.kpj", std::string(reinterpret_cast<const char*>(data), size), &err)) return 0;
  readProjectOptions(project, 0);
  return 0;
}
