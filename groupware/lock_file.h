// The ".lock" file beside a server copy: the name of the user who last took its
// lock. Information only: no rule reads it.
#pragma once

#include <string>

// The user name is cut to what the Windows name buffer holds.
constexpr size_t kMaxUserName = 99;

inline std::string lockFilePath(const std::string& serverFile) { return serverFile + ".lock"; }

// Writes the name (at most kMaxUserName characters) with no line end, replacing the old file.
bool writeLockFile(const std::string& serverFile, const std::string& user, std::string* err);

// The name held by a lock file's bytes: the text up to the first zero byte, CR
// or LF (a hand-edited file may end its line), at most kMaxUserName characters.
std::string lockHolderOf(const std::string& bytes);

// A record is one line holding the name. False, with the line (from 1) and the
// reason, when the bytes are something else (a second line, no name, a control
// code, a name too long), as a hand edit or another program leaves them.
bool lockRecordIsSound(const std::string& bytes, size_t* line, std::string* reason);

enum class LockRecord {
  Absent,   // the file cannot be read (no one ever took the lock); err says why
  Damaged,  // user holds what lockHolderOf reads; err names the file, the line and the fault
  Read,
};
LockRecord readLockFile(const std::string& serverFile, std::string* user, std::string* err);
