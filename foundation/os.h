// The one seam between the core and the operating system: files, directories,
// attributes, times, dates and the user's identity.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#ifdef _WIN32
constexpr char kPathSeparator = '\\';
#else
constexpr char kPathSeparator = '/';
#endif

// The fields and order of the Windows SYSTEMTIME, so that records holding a
// date keep one binary form on every host.
struct SystemTime {
  uint16_t year = 0;
  uint16_t month = 0;
  uint16_t dayOfWeek = 0;  // 0 = Sunday
  uint16_t day = 0;
  uint16_t hour = 0;
  uint16_t minute = 0;
  uint16_t second = 0;
  uint16_t milliseconds = 0;
};

struct FileAttributes {
  bool isDirectory = false;
  bool readOnly = false;
  // A symbolic link or junction: walks do not descend into linked directories,
  // which could lead back up the tree.
  bool isLink = false;
  // A FIFO, device or socket: reading one could block or never end, so walks
  // skip it and readFile and openFile refuse it.
  bool isSpecial = false;
  // POSIX: its owner may run it (a program or a script); false on Windows.
  bool executable = false;
  int64_t modified = 0;  // seconds since 1970-01-01 UTC
  uint64_t size = 0;
};

struct DirectoryEntry {
  std::string name;  // never "." or ".."
  FileAttributes attributes;
};

// An open file of the OS layer; the destructor closes it silently.
class OsFile {
 public:
  virtual ~OsFile() = default;
  // Up to size bytes; *got is 0 at the end of the file.
  virtual bool read(char* buffer, size_t size, size_t* got, std::string* err) = 0;
  // All of size bytes, or false.
  virtual bool write(const char* data, size_t size, std::string* err) = 0;
  // The file's modification time, in seconds since 1970-01-01 UTC.
  virtual bool setModified(int64_t modified, std::string* err) = 0;
  // Closes now, reporting what the system could not write.
  virtual bool close(std::string* err) = 0;
};

// The mode a file put in place by a replacement ends with.
enum class FinalMode {
  LikeTarget,  // the replaced file's permissions; the defaults for a new file
  ReadOnly,
  Writable,
};

// An exclusive advisory lock, released when destroyed (and by the system when
// the process dies, so a killed run never leaves a file locked).
class OsLock {
 public:
  virtual ~OsLock() = default;
};

enum class LockAttempt { Taken, Busy, Failed };

enum class DateForm { Short, Long };
// User: the user's own formats. System: the system locale's defaults, user overrides ignored.
enum class LocaleChoice { User, System };

// Every operation that can fail returns true on success and otherwise puts a
// message naming the call, the path and the system's reason into *err (err may
// be null). Implementations: os_posix.cpp, os_win32.cpp; tests wrap one to fail on demand.
class Os {
 public:
  virtual ~Os() = default;

  // Whole files, binary. Only a regular file is read (checked on the open file,
  // so a swap after a check cannot fool it), and no further than the size it
  // had when opened.
  virtual bool readFile(const std::string& path, std::string* data, std::string* err) = 0;
  // Creates or truncates in place: for test fixtures and benchmarks only. A file
  // that someone else may read or write goes through writeFileAtomic.
  virtual bool writeFile(const std::string& path, const std::string& data, std::string* err) = 0;
  // A file read piece by piece, for work that shows its progress; null on
  // failure. Only a regular file is opened, as readFile reads.
  virtual std::unique_ptr<OsFile> openFile(const std::string& path, std::string* err) = 0;
  // Creates path for writing, exclusively: null, with *existed set, when anything
  // is there already, a link included, so that nothing is ever written through a
  // planted link. The file takes the permissions of likeFile when that is a
  // regular file (the defaults otherwise), made read-only or writable as mode
  // says, and runnable by whoever may read it when executable (POSIX only).
  virtual std::unique_ptr<OsFile> createNewFile(const std::string& path, const std::string& likeFile, FinalMode mode,
                                                bool executable, bool* existed, std::string* err) = 0;
  // One attempt at the exclusive advisory lock of path, held on its sidecar lock
  // file (lockFilePathFor), which is created when missing and never followed
  // through a link. Busy when another process holds it.
  virtual LockAttempt tryLock(const std::string& path, std::unique_ptr<OsLock>* lock, std::string* err) = 0;
  virtual void sleepMilliseconds(int milliseconds) = 0;

  virtual bool exists(const std::string& path) = 0;
  // A link's attributes are those of its target, with isLink set.
  virtual bool attributes(const std::string& path, FileAttributes* out, std::string* err) = 0;
  // Never through a link.
  virtual bool setReadOnly(const std::string& path, bool readOnly, std::string* err) = 0;
  virtual bool setModified(const std::string& path, int64_t modified, std::string* err) = 0;
  // Entries sorted by name, case-insensitively, as the Windows file system lists them;
  // a link's attributes are those of its target, with isLink set.
  virtual bool listDirectory(const std::string& dir, std::vector<DirectoryEntry>* entries, std::string* err) = 0;
  virtual bool makeDirectory(const std::string& path, std::string* err) = 0;
  virtual bool removeFile(const std::string& path, std::string* err) = 0;
  virtual bool removeDirectory(const std::string& path, std::string* err) = 0;
  // Fails when `to` exists, as on Windows.
  virtual bool renameFile(const std::string& from, const std::string& to, std::string* err) = 0;
  // Atomically puts `from` in place of `to`, which may exist (read-only or a link,
  // which is replaced, not followed).
  virtual bool replaceFile(const std::string& from, const std::string& to, std::string* err) = 0;

  virtual std::string currentDirectory() = 0;
  virtual bool setCurrentDirectory(const std::string& path, std::string* err) = 0;

  virtual std::string userName() = 0;
  virtual SystemTime localTime() = 0;
  virtual SystemTime systemTime() = 0;  // UTC
  virtual std::string formatDate(const SystemTime& date, DateForm form, LocaleChoice locale) = 0;
  virtual std::string formatTime(const SystemTime& time, LocaleChoice locale) = 0;

  // Opens a document with the desktop's opener.
  virtual bool openDocument(const std::string& path, std::string* err) = 0;

  // How long lock() waits for another process before it gives up.
  int lockWaitMilliseconds = 30000;

  // Takes the advisory lock of path, waiting for another holder up to
  // lockWaitMilliseconds; null with *err naming the file on failure.
  std::unique_ptr<OsLock> lock(const std::string& path, std::string* err);

  // Writes through a Replacement, so that a crash never leaves a half-written
  // file and a reader sees the old or the new contents, never a mix.
  bool writeFileAtomic(const std::string& path, const std::string& data, std::string* err) {
    return writeFileAtomic(path, data, FinalMode::LikeTarget, err);
  }
  bool writeFileAtomic(const std::string& path, const std::string& data, FinalMode mode, std::string* err);
  // Text files in the platform's text mode: "\n" becomes CR LF on Windows.
  bool writeTextFileAtomic(const std::string& path, const std::string& text, std::string* err);
  // setReadOnly, and where the system refuses it (on POSIX only a file's owner
  // may change its mode) the file is replaced by a copy with the new mode and
  // the same time, which write permission on its directory suffices for.
  bool setReadOnlyOrReplace(const std::string& path, bool readOnly, std::string* err);
  // Creates path and every missing folder above it; true when it exists afterwards.
  bool makeDirectories(const std::string& path, std::string* err);
  // Reads a text file; on Windows CR LF becomes "\n".
  bool readTextFile(const std::string& path, std::string* text, std::string* err);
};

// The process-wide OS layer: the real one unless a test installed another.
Os& os();

// Installs a replacement for the lifetime of the object (tests).
class ScopedOs {
 public:
  explicit ScopedOs(Os& replacement);
  ~ScopedOs();
  ScopedOs(const ScopedOs&) = delete;
  ScopedOs& operator=(const ScopedOs&) = delete;

 private:
  Os* previous_;
};

// The platform's own implementation, for wrappers that delegate to it.
Os& platformOs();

// A new version of a file, written beside it and put in its place. The
// temporary has a unique name (temporaryPathFor), is created exclusively with
// the mode the target ends with, and is removed when the object dies
// uncommitted, so that every failure path leaves the target as it was.
class Replacement {
 public:
  Replacement() = default;
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // executable: the copy of a program stays one (POSIX only).
  bool open(const std::string& target, FinalMode mode, std::string* err, bool executable = false);
  OsFile& file() { return *file_; }
  // Closes the temporary and renames it over the target.
  bool commit(std::string* err);

 private:
  std::string target_;
  std::string temporary_;
  std::unique_ptr<OsFile> file_;
};

// The temporaries of a replacement of path: hidden names beside it, each with
// a token of its own ("DIR/.NAME.kesto-tmp-TOKEN").
std::string temporaryPathFor(const std::string& path, const std::string& token);
bool isTemporaryName(const std::string& fileName);
// The sidecar file that holds the advisory lock of path: "DIR/.NAME.kesto-lock".
std::string lockFilePathFor(const std::string& path);
bool isLockFileName(const std::string& fileName);

// Text in the platform's text mode: "\n" becomes CR LF on Windows.
std::string platformText(const std::string& text);

// Path helpers with the platform's separator.
std::string joinPath(const std::string& dir, const std::string& name);
// Rooted ("/x", "\\x") or with a drive ("c:x"), with either separator.
bool isAbsolutePath(const std::string& path);
// The part before the last separator; "" when there is none.
std::string directoryOf(const std::string& path);
// The part after the last separator.
std::string fileNameOf(const std::string& path);

// A directory that a walk of the tree descends into: not a link to one.
inline bool isWalkableDirectory(const DirectoryEntry& entry) {
  return entry.attributes.isDirectory && !entry.attributes.isLink;
}
