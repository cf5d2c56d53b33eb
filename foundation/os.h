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
  // Closes now, reporting what the system could not write.
  virtual bool close(std::string* err) = 0;
};

enum class FileAccess { Read, Write };  // Write creates or truncates

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
  // Creates or truncates.
  virtual bool writeFile(const std::string& path, const std::string& data, std::string* err) = 0;
  virtual bool appendFile(const std::string& path, const std::string& data, std::string* err) = 0;
  // A file read or written piece by piece, for work that shows its progress;
  // null on failure. Reading refuses what is not a regular file, as readFile does.
  virtual std::unique_ptr<OsFile> openFile(const std::string& path, FileAccess access, std::string* err) = 0;

  virtual bool exists(const std::string& path) = 0;
  virtual bool attributes(const std::string& path, FileAttributes* out, std::string* err) = 0;
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
  // Atomically puts `from` in place of `to`, which may exist.
  virtual bool replaceFile(const std::string& from, const std::string& to, std::string* err) = 0;
  // Copies contents, modification time and the read-only attribute.
  virtual bool copyFile(const std::string& from, const std::string& to, bool failIfExists, std::string* err) = 0;

  virtual std::string currentDirectory() = 0;
  virtual bool setCurrentDirectory(const std::string& path, std::string* err) = 0;

  virtual std::string userName() = 0;
  virtual SystemTime localTime() = 0;
  virtual SystemTime systemTime() = 0;  // UTC
  virtual std::string formatDate(const SystemTime& date, DateForm form, LocaleChoice locale) = 0;
  virtual std::string formatTime(const SystemTime& time, LocaleChoice locale) = 0;

  // Opens a document with the desktop's opener.
  virtual bool openDocument(const std::string& path, std::string* err) = 0;

  // Writes through a temporary file beside `path` and renames it into place,
  // so a crash never leaves a half-written file.
  bool writeFileAtomic(const std::string& path, const std::string& data, std::string* err);
  // Text files in the platform's text mode: "\n" becomes CR LF on Windows.
  bool writeTextFile(const std::string& path, const std::string& text, std::string* err);
  bool writeTextFileAtomic(const std::string& path, const std::string& text, std::string* err);
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

// The temporary file beside path that a rewrite of path goes through.
std::string temporaryPathFor(const std::string& path);

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
