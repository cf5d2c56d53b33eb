// Feeds arbitrary bytes to the task file reader, then writes what it kept and
// reads that back: a list that was read must survive its own round trip.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/binary_io.h"
#include "tasks/task_list.h"

namespace {

std::string writeList(TaskList& list) {
  ByteStream file;
  if (!list.writeTo(file)) std::abort();
  return file.bytes();
}

bool readList(TaskList& list, const uint8_t* data, size_t size) {
  ByteStream file(std::string(reinterpret_cast<const char*>(data), size));
  return list.readFrom(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  TaskList list;
  if (!readList(list, data, size)) return 0;
  std::string written = writeList(list);
  TaskList again;
  if (!readList(again, reinterpret_cast<const uint8_t*>(written.data()), written.size())) std::abort();
  if (writeList(again) != written) std::abort();
  for (int32_t i = 0; i < list.view.count(); ++i) {
    std::string row;
    list.view[i]->appendRowText(&row);
  }
  String report;
  list.todayReport(report);
  return 0;
}
