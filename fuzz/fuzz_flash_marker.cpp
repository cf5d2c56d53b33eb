// Reads fuzzed flash markers: a marker flashes again only when its first word
// is not today's date, and writing today's marker always stops the next flash.
#include <cstddef>
#include <cstdint>
#include <string>

#include "foundation/os.h"
#include "tasks/flash.h"
#include "tasks/task_list.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string marker = "fuzz_flash_marker.fltme";
  if (!os().writeFile(marker, std::string(reinterpret_cast<const char*>(data), size), nullptr)) return 0;
  TaskList tasks;
  tasks.autoFlash = 1;
  shouldFlashAtProjectOpen(tasks, marker);
  writeFlashMarker(marker);
  if (shouldFlashAtProjectOpen(tasks, marker)) __builtin_trap();
  return 0;
}
