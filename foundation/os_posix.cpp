// The OS layer on POSIX systems.
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <langinfo.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <utility>

#include "foundation/file_mask.h"
#include "foundation/os.h"

namespace {

bool fail(std::string* err, const char* call, const std::string& path) {
  if (err) *err = std::string(call) + " " + path + ": " + std::strerror(errno);
  return false;
}

bool writeAll(int fd, const char* data, size_t size) {
  size_t done = 0;
  while (done < size) {
    ssize_t n = ::write(fd, data + done, size - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    done += static_cast<size_t>(n);
  }
  return true;
}

bool writeWithFlags(const std::string& path, const std::string& data, int flags, std::string* err) {
  int fd = ::open(path.c_str(), flags, 0666);
  if (fd < 0) return fail(err, "open", path);
  bool ok = writeAll(fd, data.data(), data.size());
  int savedErrno = errno;
  if (::close(fd) != 0 && ok) return fail(err, "close", path);
  errno = savedErrno;
  return ok ? true : fail(err, "write", path);
}

class PosixFile : public OsFile {
 public:
  // readLimit: the size the file had when it was opened to be read. A file that
  // another process keeps growing (a log) is read as it was, not without end.
  PosixFile(int fd, std::string path, uint64_t readLimit = UINT64_MAX)
      : fd_(fd), path_(std::move(path)), unread_(readLimit) {}
  ~PosixFile() override {
    if (fd_ >= 0) ::close(fd_);
  }
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;

  bool read(char* buffer, size_t size, size_t* got, std::string* err) override {
    size = static_cast<size_t>(std::min<uint64_t>(size, unread_));
    if (size == 0) {
      *got = 0;
      return true;
    }
    for (;;) {
      ssize_t n = ::read(fd_, buffer, size);
      if (n >= 0) {
        *got = static_cast<size_t>(n);
        unread_ -= *got;
        return true;
      }
      if (errno != EINTR) return fail(err, "read", path_);
    }
  }

  bool write(const char* data, size_t size, std::string* err) override {
    return writeAll(fd_, data, size) || fail(err, "write", path_);
  }

  bool setModified(int64_t modified, std::string* err) override {
    struct timespec times[2];
    times[0].tv_sec = static_cast<time_t>(modified);
    times[0].tv_nsec = 0;
    times[1] = times[0];
    return ::futimens(fd_, times) == 0 || fail(err, "futimens", path_);
  }

  bool close(std::string* err) override {
    int fd = fd_;
    fd_ = -1;
    return ::close(fd) == 0 || fail(err, "close", path_);
  }

 private:
  int fd_;
  std::string path_;
  uint64_t unread_;
};

// flock() on the sidecar: it belongs to the open file, so the system drops it
// when the process dies, and it needs no write permission on the sidecar.
class PosixLock : public OsLock {
 public:
  explicit PosixLock(int fd) : fd_(fd) {}
  ~PosixLock() override { ::close(fd_); }
  PosixLock(const PosixLock&) = delete;
  PosixLock& operator=(const PosixLock&) = delete;

 private:
  int fd_;
};

mode_t finalMode(mode_t base, FinalMode mode) {
  switch (mode) {
    case FinalMode::ReadOnly:
      return base & ~static_cast<mode_t>(0222);
    case FinalMode::Writable:
      return base | S_IWUSR;
    case FinalMode::LikeTarget:
      break;
  }
  return base;
}

// The sidecar opened for locking: created when missing, never through a link
// and never a FIFO or device someone planted there (O_NONBLOCK keeps the open
// of a FIFO from hanging).
int openLockFile(const std::string& sidecar) {
  const int flags = O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
  int fd = ::open(sidecar.c_str(), flags | O_CREAT, 0666);
  // A directory this user may not write still has its sidecar when someone made it.
  if (fd < 0 && (errno == EACCES || errno == EROFS)) fd = ::open(sidecar.c_str(), flags);
  if (fd < 0) return -1;
  struct stat info;
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(fd);
    errno = EINVAL;
    return -1;
  }
  return fd;
}

FileAttributes fromStat(const struct stat& info) {
  FileAttributes attributes;
  attributes.isDirectory = S_ISDIR(info.st_mode);
  attributes.isSpecial = !S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode);
  attributes.readOnly = (info.st_mode & S_IWUSR) == 0;
  attributes.executable = S_ISREG(info.st_mode) && (info.st_mode & S_IXUSR) != 0;
  attributes.modified = static_cast<int64_t>(info.st_mtime);
  attributes.size = static_cast<uint64_t>(info.st_size);
  return attributes;
}

SystemTime fromTm(const struct tm& t, long milliseconds) {
  SystemTime time;
  time.year = static_cast<uint16_t>(t.tm_year + 1900);
  time.month = static_cast<uint16_t>(t.tm_mon + 1);
  time.dayOfWeek = static_cast<uint16_t>(t.tm_wday);
  time.day = static_cast<uint16_t>(t.tm_mday);
  time.hour = static_cast<uint16_t>(t.tm_hour);
  time.minute = static_cast<uint16_t>(t.tm_min);
  time.second = static_cast<uint16_t>(t.tm_sec);
  time.milliseconds = static_cast<uint16_t>(milliseconds);
  return time;
}

struct tm toTm(const SystemTime& time) {
  struct tm t;
  std::memset(&t, 0, sizeof t);
  t.tm_year = time.year - 1900;
  t.tm_mon = time.month - 1;
  t.tm_mday = time.day;
  t.tm_hour = time.hour;
  t.tm_min = time.minute;
  t.tm_sec = time.second;
  t.tm_wday = time.dayOfWeek;
  return t;
}

// The locale whose time formats apply: the user's LC_TIME, or the system default "C".
const char* timeLocale(LocaleChoice choice) {
  if (choice == LocaleChoice::System) return "C";
  const char* names[] = {"LC_ALL", "LC_TIME", "LANG"};
  for (const char* name : names) {
    const char* value = std::getenv(name);
    if (value && *value) return value;
  }
  return "C";
}

bool isPlainCLocale(const char* name) {
  return std::strcmp(name, "C") == 0 || std::strcmp(name, "POSIX") == 0 || std::strncmp(name, "C.", 2) == 0;
}

const char* const kDayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const kMonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

// In the C locale the forms are those of Windows' default US locale, so that
// the add-on and the command-line host print the same texts.
std::string usDate(const SystemTime& date, DateForm form) {
  char text[80];
  if (form == DateForm::Short) {
    std::snprintf(text, sizeof text, "%u/%u/%u", date.month, date.day, date.year);
  } else {
    std::snprintf(text, sizeof text, "%s, %s %u, %u", kDayNames[date.dayOfWeek % 7],
                  kMonthNames[(date.month + 11) % 12], date.day, date.year);
  }
  return text;
}

std::string usTime(const SystemTime& time) {
  char text[40];
  unsigned hour12 = time.hour % 12 == 0 ? 12 : time.hour % 12;
  std::snprintf(text, sizeof text, "%u:%02u:%02u %s", hour12, time.minute, time.second, time.hour < 12 ? "AM" : "PM");
  return text;
}

// Formats with the locale's own pattern, in a private locale object so that the
// process's global locale never changes.
std::string localeFormat(const char* localeName, nl_item item, const SystemTime& time, const char* fallback) {
  locale_t locale = newlocale(LC_TIME_MASK, localeName, static_cast<locale_t>(0));
  if (!locale) return "";
  const char* pattern = nl_langinfo_l(item, locale);
  if (!pattern || !*pattern) pattern = fallback;
  struct tm t = toTm(time);
  char text[128];
  size_t n = strftime_l(text, sizeof text, pattern, &t, locale);
  freelocale(locale);
  return std::string(text, n);
}

// The current time, or the one SOURCE_DATE_EPOCH pins for reproducible runs.
struct timeval currentTimeOfDay() {
  struct timeval now;
  const char* pinned = std::getenv("SOURCE_DATE_EPOCH");
  char* end = nullptr;
  long long seconds = pinned && *pinned ? std::strtoll(pinned, &end, 10) : 0;
  if (pinned && *pinned && *end == 0) {
    now.tv_sec = static_cast<time_t>(seconds);
    now.tv_usec = 0;
  } else {
    ::gettimeofday(&now, nullptr);
  }
  return now;
}

class PosixOs : public Os {
 public:
  bool readFile(const std::string& path, std::string* data, std::string* err) override {
    // Non-blocking, so that opening a FIFO cannot wait for a writer.
    int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (fd < 0) return fail(err, "open", path);
    struct stat info;
    if (::fstat(fd, &info) != 0) {
      int savedErrno = errno;
      ::close(fd);
      errno = savedErrno;
      return fail(err, "fstat", path);
    }
    if (!S_ISREG(info.st_mode)) {
      ::close(fd);
      if (err) *err = "read " + path + ": not a regular file";
      return false;
    }
    // A file that grows while it is read is read as it was when opened.
    size_t size = static_cast<size_t>(info.st_size);
    data->clear();
    data->reserve(size);
    char buffer[65536];
    while (data->size() < size) {
      size_t wanted = std::min(sizeof buffer, size - data->size());
      ssize_t n = ::read(fd, buffer, wanted);
      if (n < 0) {
        if (errno == EINTR) continue;
        int savedErrno = errno;
        ::close(fd);
        errno = savedErrno;
        return fail(err, "read", path);
      }
      if (n == 0) break;
      data->append(buffer, static_cast<size_t>(n));
    }
    ::close(fd);
    return true;
  }

  bool writeFile(const std::string& path, const std::string& data, std::string* err) override {
    return writeWithFlags(path, data, O_WRONLY | O_CREAT | O_TRUNC, err);
  }

  std::unique_ptr<OsFile> openFile(const std::string& path, std::string* err) override {
    // Non-blocking, so that opening a FIFO to read cannot wait for a writer.
    int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) {
      fail(err, "open", path);
      return nullptr;
    }
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
      ::close(fd);
      if (err) *err = "read " + path + ": not a regular file";
      return nullptr;
    }
    return std::make_unique<PosixFile>(fd, path, static_cast<uint64_t>(info.st_size));
  }

  std::unique_ptr<OsFile> createNewFile(const std::string& path, const std::string& likeFile, FinalMode mode,
                                        bool executable, bool* existed, std::string* err) override {
    // O_EXCL refuses anything at path, a dangling link included; O_NOFOLLOW says so twice.
    int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    *existed = fd < 0 && errno == EEXIST;
    if (fd < 0) {
      fail(err, "open", path);
      return nullptr;
    }
    auto file = std::make_unique<PosixFile>(fd, path);
    struct stat info;
    bool like = !likeFile.empty() && ::lstat(likeFile.c_str(), &info) == 0 && S_ISREG(info.st_mode);
    if (!like && ::fstat(fd, &info) != 0) {  // the defaults: what the umask left of 0666
      fail(err, "fstat", path);
      file.reset();
      ::unlink(path.c_str());
      return nullptr;
    }
    // Set on the open file before any byte is written, so the file never has another mode under its final name.
    mode_t permissions = finalMode(info.st_mode & 0777, mode);
    if (executable) permissions |= (permissions & 0444) >> 2;
    if (::fchmod(fd, permissions) != 0) {
      fail(err, "fchmod", path);
      file.reset();
      ::unlink(path.c_str());
      return nullptr;
    }
    return file;
  }

  LockAttempt tryLock(const std::string& path, std::unique_ptr<OsLock>* lock, std::string* err) override {
    std::string sidecar = lockFilePathFor(path);
    int fd = openLockFile(sidecar);
    if (fd < 0) {
      fail(err, "cannot lock: open", sidecar);
      return LockAttempt::Failed;
    }
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
      *lock = std::make_unique<PosixLock>(fd);
      return LockAttempt::Taken;
    }
    int code = errno;
    ::close(fd);
    if (code == EWOULDBLOCK || code == EINTR) return LockAttempt::Busy;
    errno = code;
    fail(err, "cannot lock: flock", sidecar);
    return LockAttempt::Failed;
  }

  void sleepMilliseconds(int milliseconds) override {
    struct timespec pause;
    pause.tv_sec = milliseconds / 1000;
    pause.tv_nsec = static_cast<long>(milliseconds % 1000) * 1000000L;
    while (::nanosleep(&pause, &pause) != 0 && errno == EINTR) {
    }
  }

  bool exists(const std::string& path) override {
    struct stat info;
    return ::stat(path.c_str(), &info) == 0;
  }

  bool attributes(const std::string& path, FileAttributes* out, std::string* err) override {
    struct stat info;
    if (::lstat(path.c_str(), &info) != 0) return fail(err, "stat", path);
    bool isLink = S_ISLNK(info.st_mode);
    if (isLink && ::stat(path.c_str(), &info) != 0) return fail(err, "stat", path);
    *out = fromStat(info);
    out->isLink = isLink;
    return true;
  }

  bool setReadOnly(const std::string& path, bool readOnly, std::string* err) override {
    // On the open file, so that a link planted at path is never followed.
    int fd = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return fail(err, "chmod", path);
    struct stat info;
    bool ok = ::fstat(fd, &info) == 0 &&
              ::fchmod(fd, finalMode(info.st_mode & 07777, readOnly ? FinalMode::ReadOnly : FinalMode::Writable)) == 0;
    int code = errno;
    ::close(fd);
    errno = code;
    return ok || fail(err, "chmod", path);
  }

  bool setModified(const std::string& path, int64_t modified, std::string* err) override {
    struct timeval times[2];
    times[0].tv_sec = static_cast<time_t>(modified);
    times[0].tv_usec = 0;
    times[1] = times[0];
    if (::utimes(path.c_str(), times) != 0) return fail(err, "utimes", path);
    return true;
  }

  bool listDirectory(const std::string& dir, std::vector<DirectoryEntry>* entries, std::string* err) override {
    DIR* handle = ::opendir(dir.c_str());
    if (!handle) return fail(err, "opendir", dir);
    entries->clear();
    while (struct dirent* entry = ::readdir(handle)) {
      if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) continue;
      // Relative to the open directory, so that an entry whose full path is
      // longer than the system takes is still listed, and the walk can say so.
      struct stat info;
      if (::fstatat(::dirfd(handle), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0) continue;
      bool isLink = S_ISLNK(info.st_mode);
      if (isLink && ::fstatat(::dirfd(handle), entry->d_name, &info, 0) != 0) continue;  // a dangling link is not an entry
      DirectoryEntry listed{entry->d_name, fromStat(info)};
      listed.attributes.isLink = isLink;
      entries->push_back(listed);
    }
    ::closedir(handle);
    std::sort(entries->begin(), entries->end(),
              [](const DirectoryEntry& a, const DirectoryEntry& b) { return lessFileName(a.name, b.name); });
    return true;
  }

  bool makeDirectory(const std::string& path, std::string* err) override {
    if (::mkdir(path.c_str(), 0777) != 0) return fail(err, "mkdir", path);
    return true;
  }

  bool removeFile(const std::string& path, std::string* err) override {
    if (::unlink(path.c_str()) != 0) return fail(err, "unlink", path);
    return true;
  }

  bool removeDirectory(const std::string& path, std::string* err) override {
    if (::rmdir(path.c_str()) != 0) return fail(err, "rmdir", path);
    return true;
  }

  bool renameFile(const std::string& from, const std::string& to, std::string* err) override {
    // link() refuses an existing target atomically, which rename() would overwrite.
    if (::link(from.c_str(), to.c_str()) != 0) {
      if (errno != EPERM && errno != ENOTSUP && errno != EXDEV) return fail(err, "rename", from + " to " + to);
      if (exists(to)) {
        errno = EEXIST;
        return fail(err, "rename", from + " to " + to);
      }
      if (::rename(from.c_str(), to.c_str()) != 0) return fail(err, "rename", from + " to " + to);
      return true;
    }
    if (::unlink(from.c_str()) != 0) return fail(err, "rename", from + " to " + to);
    return true;
  }

  bool replaceFile(const std::string& from, const std::string& to, std::string* err) override {
    // rename() replaces a link at `to` itself, and needs no write permission on a read-only target.
    if (::rename(from.c_str(), to.c_str()) != 0) return fail(err, "rename", from + " to " + to);
    return true;
  }

  std::string currentDirectory() override {
    char buffer[4096];
    return ::getcwd(buffer, sizeof buffer) ? std::string(buffer) : std::string(".");
  }

  bool setCurrentDirectory(const std::string& path, std::string* err) override {
    if (::chdir(path.c_str()) != 0) return fail(err, "chdir", path);
    return true;
  }

  // The login name first, as a shell shows it: accounts shared through sudo or
  // containers often have no name of their own, or the same one for everybody.
  std::string userName() override {
    for (const char* variable : {"LOGNAME", "USER"})
      if (const char* user = std::getenv(variable); user && *user) return user;
    if (struct passwd* entry = ::getpwuid(::geteuid())) return entry->pw_name;
    return "";
  }

  SystemTime localTime() override {
    struct timeval now = currentTimeOfDay();
    struct tm t;
    ::localtime_r(&now.tv_sec, &t);
    return fromTm(t, now.tv_usec / 1000);
  }

  SystemTime systemTime() override {
    struct timeval now = currentTimeOfDay();
    struct tm t;
    ::gmtime_r(&now.tv_sec, &t);
    return fromTm(t, now.tv_usec / 1000);
  }

  std::string formatDate(const SystemTime& date, DateForm form, LocaleChoice choice) override {
    const char* name = timeLocale(choice);
    if (isPlainCLocale(name)) return usDate(date, form);
    // A locale that is not installed falls back to the US forms, as Windows does.
    std::string text = form == DateForm::Short ? localeFormat(name, D_FMT, date, "%x") : longDate(name, date);
    return text.empty() ? usDate(date, form) : text;
  }

  std::string formatTime(const SystemTime& time, LocaleChoice choice) override {
    const char* name = timeLocale(choice);
    if (isPlainCLocale(name)) return usTime(time);
    std::string text = localeFormat(name, T_FMT, time, "%X");
    return text.empty() ? usTime(time) : text;
  }

  bool openDocument(const std::string& path, std::string* err) override {
    pid_t child = ::fork();
    if (child < 0) return fail(err, "fork", path);
    if (child == 0) {
      ::execlp("xdg-open", "xdg-open", path.c_str(), static_cast<char*>(nullptr));
      ::_exit(127);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) < 0) return fail(err, "waitpid", path);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
      if (err) *err = "xdg-open " + path + ": failed";
      return false;
    }
    return true;
  }

 private:
  // The long form spells out the weekday and the month in the locale's words.
  static std::string longDate(const char* name, const SystemTime& date) {
    locale_t locale = newlocale(LC_TIME_MASK, name, static_cast<locale_t>(0));
    if (!locale) return "";
    struct tm t = toTm(date);
    char text[128];
    size_t n = strftime_l(text, sizeof text, "%A %e %B %Y", &t, locale);
    freelocale(locale);
    std::string out(text, n);
    // "%e" pads single-digit days with a blank.
    size_t doubled = out.find("  ");
    if (doubled != std::string::npos) out.erase(doubled, 1);
    return out;
  }
};

}  // namespace

Os& platformOs() {
  static PosixOs instance;
  return instance;
}
