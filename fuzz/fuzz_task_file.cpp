// Feeds arbitrary bytes to the task file reader, then writes what it kept and
// reads that back: a list that was read must survive its own round trip.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tasks/task_list.h"

namespace {

std::string writeList(TaskList& list) {
  char* buffer = nullptr;
  size_t size = 0;
  FILE* file = open_memstream(&buffer, &size);
  if (!file) std::abort();
  if (!list.writeTo(file)) std::abort();
  std::fclose(file);
  std::string bytes(buffer, size);
  std::free(buffer);
  return bytes;
}

bool readList(TaskList& list, const uint8_t* data, size_t size) {
  // fmemopen refuses an empty buffer; an empty file then reads as nothing.
  if (size == 0) return false;
  FILE* file = fmemopen(const_cast<uint8_t*>(data), size, "rb");
  if (!file) std::abort();
  bool complete = list.readFrom(file);
  std::fclose(file);
  return complete;
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
