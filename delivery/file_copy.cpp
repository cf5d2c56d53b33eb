// STAND-IN until the shared copy routine lands on main; deleted at that merge.
#include "delivery/file_copy.h"

#include "foundation/os.h"

CopyFailure copyFileWithProgress(const std::string& from, const std::string& to, CopyProgress& progress,
                                 std::string* err) {
  FileAttributes attributes;
  uint64_t size = os().attributes(from, &attributes, nullptr) ? attributes.size : 0;
  std::string data;
  if (!os().readFile(from, &data, err)) {
    progress.advance(size, from);
    return CopyFailure::OpenSource;
  }
  if (!os().writeFileAtomic(to, data, err)) {
    progress.advance(size, from);
    return CopyFailure::CreateTarget;
  }
  os().setModified(to, attributes.modified, nullptr);
  progress.advance(size, from);
  return CopyFailure::None;
}
