// Reading and writing lock files.
#include "groupware/lock_file.h"

#include "foundation/os.h"

bool writeLockFile(const std::string& serverFile, const std::string& user, std::string* err) {
  return os().writeTextFileAtomic(lockFilePath(serverFile), user.substr(0, kMaxUserName), err);
}

std::string lockHolderOf(const std::string& bytes) {
  size_t end = bytes.find_first_of(std::string("\0\r\n", 3));
  std::string name = bytes.substr(0, end);
  return name.substr(0, kMaxUserName);
}

bool readLockFile(const std::string& serverFile, std::string* user, std::string* err) {
  std::string bytes;
  if (!os().readFile(lockFilePath(serverFile), &bytes, err)) return false;
  *user = lockHolderOf(bytes);
  return true;
}
