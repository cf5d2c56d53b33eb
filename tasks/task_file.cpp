// The task file: header, type list and task records, little-endian.
#include <memory>

#include "foundation/binary_io.h"
#include "tasks/task_list.h"

bool TaskList::load(std::string* err) {
  damagedFile_ = false;
  const std::string path = filePath.str();
  if (!os().exists(path)) return true;
  std::string bytes;
  std::string why;
  if (!os().readFile(path, &bytes, &why)) {
    damagedFile_ = true;
    if (err) *err = path + ": cannot read the tasks (" + why + "); the file is left as it is";
    return false;
  }
  if (bytes.empty()) return true;
  ByteStream file(std::move(bytes));
  if (readFrom(file)) return true;
  damagedFile_ = true;
  if (err)
    *err = path + ": damaged task file, read as far as " + std::to_string(count()) +
           " task(s); it is left as it is and nothing is saved over it";
  return false;
}

bool TaskList::readFrom(ByteStream& file) {
  int32_t version = 0;
  if (!readI32(file, &version) || version < 0 || version > kFileVersion) return false;
  int32_t flags[kTaskStateCount];
  int32_t storedReverse = 0;
  int32_t storedSortKey = 0;
  for (int32_t& flag : flags)
    if (!readI32(file, &flag)) return false;
  if (!readI32(file, &storedReverse) || !readI32(file, &storedSortKey)) return false;

  // From here on the file replaces what the list held.
  for (int32_t i = 0; i < kTaskStateCount; ++i) showFlags[i] = flags[i];
  reverse = storedReverse;
  sortKey = storedSortKey;
  view.clear();
  clear();
  bool complete = types.fRead(file) != 0;
  // A type list cut short keeps the names read before the gap, dropped in one
  // step: a damaged count can leave tens of thousands of empty slots.
  int32_t kept = 0;
  while (kept < types.count() && types[kept]) ++kept;
  if (kept < types.count()) types.removeRange(kept, 0);
  int32_t stored = 0;
  if (complete && readI32(file, &stored)) {
    for (int32_t i = 0; i < stored; ++i) {
      auto task = std::make_unique<Task>();
      if (!task->fRead(file)) {
        complete = false;
        break;
      }
      append(task.release());
    }
  } else {
    complete = false;
  }
  rebuildView();
  return complete;
}

bool TaskList::writeTo(ByteStream& file) {
  bool ok = writeI32(file, kFileVersion);
  for (int32_t flag : showFlags) ok = ok && writeI32(file, flag);
  ok = ok && writeI32(file, reverse) && writeI32(file, sortKey) && types.fWrite(file) && writeI32(file, count());
  for (int32_t i = 0; ok && i < count(); ++i) ok = (*this)[i]->fWrite(file) != 0;
  return ok;
}

bool TaskList::save(std::string* err) {
  if (damagedFile_) {
    if (err) *err = filePath.str() + " was damaged when it was read: it is not saved over";
    return false;
  }
  ByteStream file;
  if (!writeTo(file)) {
    if (err) *err = "cannot write the tasks of " + filePath.str();
    return false;
  }
  std::unique_ptr<OsLock> lock = os().lock(filePath.str(), err);
  return lock && os().writeFileAtomic(filePath.str(), file.bytes(), err);
}
