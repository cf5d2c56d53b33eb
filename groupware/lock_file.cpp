// Reading and writing lock files.
#include "groupware/lock_file.h"

#include <cstdio>

#include "foundation/os.h"

bool writeLockFile(const std::string& serverFile, const std::string& user, std::string* err) {
  return os().writeTextFileAtomic(lockFilePath(serverFile), user.substr(0, kMaxUserName), err);
}

std::string lockHolderOf(const std::string& bytes) {
  size_t end = bytes.find_first_of(std::string("\0\r\n", 3));
  std::string name = bytes.substr(0, end);
  return name.substr(0, kMaxUserName);
}

bool lockRecordIsSound(const std::string& bytes, size_t* line, std::string* reason) {
  std::string name = bytes.substr(0, bytes.find_first_of(std::string("\0\r\n", 3)));
  // What follows the name may only end its line: a line end, or the zero that
  // ends a C string written whole.
  std::string rest = bytes.substr(name.size());
  size_t first = rest.find_first_not_of(std::string("\0\r\n", 3));
  *line = 1;
  if (first != std::string::npos) {
    for (size_t i = 0; i < first; ++i) *line += rest[i] == '\n' || (rest[i] == '\r' && rest[i + 1] != '\n');
    *reason = "a lock record holds one line, the user's name";
  } else if (name.empty()) {
    *reason = "no user name";
  } else if (name.size() > kMaxUserName) {
    *reason = "a user name of " + std::to_string(name.size()) + " bytes, over the " +
             std::to_string(kMaxUserName) + " a record holds";
  } else {
    for (unsigned char c : name)
      if (c < 32 || c == 127) {
        char code[8];
        std::snprintf(code, sizeof code, "0x%02X", c);
        *reason = std::string("control code ") + code + " in the user name";
        return false;
      }
    return true;
  }
  return false;
}

LockRecord readLockFile(const std::string& serverFile, std::string* user, std::string* err) {
  std::string bytes;
  if (!os().readFile(lockFilePath(serverFile), &bytes, err)) return LockRecord::Absent;
  *user = lockHolderOf(bytes);
  size_t line = 0;
  std::string reason;
  if (lockRecordIsSound(bytes, &line, &reason)) return LockRecord::Read;
  if (err) *err = lockFilePath(serverFile) + ":" + std::to_string(line) + ": " + reason;
  return LockRecord::Damaged;
}
