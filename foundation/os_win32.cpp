// The OS layer on Windows: the calls the add-on makes inside the IDE.
#include <windows.h>
#include <shellapi.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "foundation/file_mask.h"
#include "foundation/os.h"

namespace {

std::string systemText(DWORD code) {
  char buffer[512];
  DWORD n = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, buffer,
                           sizeof buffer, nullptr);
  while (n > 0 && (buffer[n - 1] == '\r' || buffer[n - 1] == '\n' || buffer[n - 1] == ' ')) --n;
  return n ? std::string(buffer, n) : "error " + std::to_string(code);
}

bool fail(std::string* err, const char* api, const std::string& path) {
  DWORD code = GetLastError();
  if (err) *err = std::string(api) + " " + path + ": " + systemText(code);
  return false;
}

// Files on a shared directory may be held briefly by another user's copy.
template <typename Call>
BOOL retryOnSharing(Call call) {
  BOOL ok = FALSE;
  for (int attempt = 0; attempt < 10; ++attempt) {
    ok = call();
    DWORD code = GetLastError();
    if (ok || (code != ERROR_SHARING_VIOLATION && code != ERROR_LOCK_VIOLATION)) break;
    Sleep(50);
  }
  return ok;
}

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  ~FileHandle() {
    if (valid()) CloseHandle(handle_);
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  // Closes now; false when the system refused (data it deferred may be lost).
  bool close() {
    HANDLE handle = handle_;
    handle_ = INVALID_HANDLE_VALUE;
    return CloseHandle(handle) != FALSE;
  }

 private:
  HANDLE handle_;
};

int64_t toUnixSeconds(const FILETIME& time) {
  ULARGE_INTEGER value;
  value.LowPart = time.dwLowDateTime;
  value.HighPart = time.dwHighDateTime;
  return static_cast<int64_t>(value.QuadPart / 10000000ULL) - 11644473600LL;
}

FILETIME fromUnixSeconds(int64_t seconds) {
  ULARGE_INTEGER value;
  value.QuadPart = static_cast<ULONGLONG>(seconds + 11644473600LL) * 10000000ULL;
  FILETIME time;
  time.dwLowDateTime = value.LowPart;
  time.dwHighDateTime = value.HighPart;
  return time;
}

class WindowsFile : public OsFile {
 public:
  WindowsFile(HANDLE handle, std::string path) : file_(handle), path_(std::move(path)) {}

  bool read(char* buffer, size_t size, size_t* got, std::string* err) override {
    DWORD n = 0;
    if (!ReadFile(file_.get(), buffer, static_cast<DWORD>(size), &n, nullptr)) return fail(err, "ReadFile", path_);
    *got = n;
    return true;
  }

  bool write(const char* data, size_t size, std::string* err) override {
    DWORD written = 0;
    if (!WriteFile(file_.get(), data, static_cast<DWORD>(size), &written, nullptr) || written != size)
      return fail(err, "WriteFile", path_);
    return true;
  }

  bool setModified(int64_t modified, std::string* err) override {
    FILETIME time = fromUnixSeconds(modified);
    return SetFileTime(file_.get(), nullptr, nullptr, &time) || fail(err, "SetFileTime", path_);
  }

  bool close(std::string* err) override { return file_.close() || fail(err, "CloseHandle", path_); }

 private:
  FileHandle file_;
  std::string path_;
};

// A byte-range lock on the sidecar, which the system drops with the handle when
// the process dies. LockFile rather than LockFileEx: Windows 95 has only the first.
class WindowsLock : public OsLock {
 public:
  explicit WindowsLock(HANDLE handle) : file_(handle) {}
  ~WindowsLock() override { UnlockFile(file_.get(), 0, 0, 1, 0); }

 private:
  FileHandle file_;
};

FileAttributes fromFindData(const WIN32_FIND_DATAA& data) {
  FileAttributes attributes;
  attributes.isDirectory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  attributes.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
  attributes.isLink = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  attributes.modified = toUnixSeconds(data.ftLastWriteTime);
  attributes.size = (static_cast<uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
  return attributes;
}

SYSTEMTIME toWindows(const SystemTime& time) {
  SYSTEMTIME out;
  out.wYear = time.year;
  out.wMonth = time.month;
  out.wDayOfWeek = time.dayOfWeek;
  out.wDay = time.day;
  out.wHour = time.hour;
  out.wMinute = time.minute;
  out.wSecond = time.second;
  out.wMilliseconds = time.milliseconds;
  return out;
}

SystemTime fromWindows(const SYSTEMTIME& time) {
  SystemTime out;
  out.year = time.wYear;
  out.month = time.wMonth;
  out.dayOfWeek = time.wDayOfWeek;
  out.day = time.wDay;
  out.hour = time.wHour;
  out.minute = time.wMinute;
  out.second = time.wSecond;
  out.milliseconds = time.wMilliseconds;
  return out;
}

LCID localeOf(LocaleChoice choice) { return choice == LocaleChoice::User ? LOCALE_USER_DEFAULT : LOCALE_SYSTEM_DEFAULT; }

DWORD overrideFlag(LocaleChoice choice) { return choice == LocaleChoice::System ? LOCALE_NOUSEROVERRIDE : 0; }

bool writeWithDisposition(const std::string& path, const std::string& data, DWORD disposition, std::string* err) {
  FileHandle file(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.valid()) return fail(err, "CreateFileA", path);
  DWORD written = 0;
  if (!data.empty() && (!WriteFile(file.get(), data.data(), static_cast<DWORD>(data.size()), &written, nullptr) ||
                        written != data.size()))
    return fail(err, "WriteFile", path);
  return true;
}

class WindowsOs : public Os {
 public:
  bool readFile(const std::string& path, std::string* data, std::string* err) override {
    FileHandle file(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.valid()) return fail(err, "CreateFileA", path);
    // A device or pipe named like a file (CON, a named pipe) could block or never end.
    if (GetFileType(file.get()) != FILE_TYPE_DISK) {
      if (err) *err = "ReadFile " + path + ": not a regular file";
      return false;
    }
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file.get(), &size)) return fail(err, "GetFileSizeEx", path);
    // A file that grows while it is read is read as it was when opened.
    size_t total = static_cast<size_t>(size.QuadPart);
    data->clear();
    data->reserve(total);
    char buffer[65536];
    DWORD got = 0;
    while (data->size() < total) {
      DWORD wanted = static_cast<DWORD>(std::min<size_t>(sizeof buffer, total - data->size()));
      if (!ReadFile(file.get(), buffer, wanted, &got, nullptr)) return fail(err, "ReadFile", path);
      if (got == 0) break;
      data->append(buffer, got);
    }
    return true;
  }

  bool writeFile(const std::string& path, const std::string& data, std::string* err) override {
    return writeWithDisposition(path, data, CREATE_ALWAYS, err);
  }

  std::unique_ptr<OsFile> openFile(const std::string& path, std::string* err) override {
    HANDLE handle = INVALID_HANDLE_VALUE;
    // Sharing deletion lets a writer rename its new version over the file being read.
    retryOnSharing([&] {
      handle = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
      return handle != INVALID_HANDLE_VALUE ? TRUE : FALSE;
    });
    if (handle == INVALID_HANDLE_VALUE) {
      fail(err, "CreateFileA", path);
      return nullptr;
    }
    if (GetFileType(handle) != FILE_TYPE_DISK) {
      CloseHandle(handle);
      if (err) *err = "ReadFile " + path + ": not a regular file";
      return nullptr;
    }
    return std::make_unique<WindowsFile>(handle, path);
  }

  std::unique_ptr<OsFile> createNewFile(const std::string& path, const std::string& likeFile, FinalMode mode,
                                        bool /*executable*/, bool* existed, std::string* err) override {
    DWORD like = likeFile.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesA(likeFile.c_str());
    bool readOnly = mode == FinalMode::ReadOnly ||
                    (mode == FinalMode::LikeTarget && like != INVALID_FILE_ATTRIBUTES &&
                     (like & FILE_ATTRIBUTE_READONLY) != 0);
    // CREATE_NEW fails on anything already there; a read-only file so created
    // still gives this handle the right to write.
    HANDLE handle = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
      DWORD code = GetLastError();
      *existed = code == ERROR_FILE_EXISTS || code == ERROR_ALREADY_EXISTS;
      fail(err, "CreateFileA", path);
      return nullptr;
    }
    *existed = false;
    return std::make_unique<WindowsFile>(handle, path);
  }

  LockAttempt tryLock(const std::string& path, std::unique_ptr<OsLock>* lock, std::string* err) override {
    std::string sidecar = lockFilePathFor(path);
    HANDLE handle = CreateFileA(sidecar.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
      // Another process creating the sidecar at this moment.
      if (GetLastError() == ERROR_SHARING_VIOLATION) return LockAttempt::Busy;
      fail(err, "cannot lock: CreateFileA", sidecar);
      return LockAttempt::Failed;
    }
    if (LockFile(handle, 0, 0, 1, 0)) {
      *lock = std::make_unique<WindowsLock>(handle);
      return LockAttempt::Taken;
    }
    DWORD code = GetLastError();
    CloseHandle(handle);
    if (code == ERROR_LOCK_VIOLATION || code == ERROR_SHARING_VIOLATION) return LockAttempt::Busy;
    SetLastError(code);
    fail(err, "cannot lock: LockFile", sidecar);
    return LockAttempt::Failed;
  }

  void sleepMilliseconds(int milliseconds) override { Sleep(static_cast<DWORD>(milliseconds)); }

  bool exists(const std::string& path) override { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

  bool attributes(const std::string& path, FileAttributes* out, std::string* err) override {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data))
      return fail(err, "GetFileAttributesExA", path);
    out->isDirectory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    out->readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    out->isLink = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    out->modified = toUnixSeconds(data.ftLastWriteTime);
    out->size = (static_cast<uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    return true;
  }

  bool setReadOnly(const std::string& path, bool readOnly, std::string* err) override {
    DWORD current = GetFileAttributesA(path.c_str());
    if (current == INVALID_FILE_ATTRIBUTES) return fail(err, "GetFileAttributesA", path);
    DWORD wanted = readOnly ? (current | FILE_ATTRIBUTE_READONLY) : (current & ~FILE_ATTRIBUTE_READONLY);
    if (!SetFileAttributesA(path.c_str(), wanted)) return fail(err, "SetFileAttributesA", path);
    return true;
  }

  bool setModified(const std::string& path, int64_t modified, std::string* err) override {
    FileHandle file(CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.valid()) return fail(err, "CreateFileA", path);
    FILETIME time = fromUnixSeconds(modified);
    if (!SetFileTime(file.get(), nullptr, nullptr, &time)) return fail(err, "SetFileTime", path);
    return true;
  }

  bool listDirectory(const std::string& dir, std::vector<DirectoryEntry>* entries, std::string* err) override {
    entries->clear();
    WIN32_FIND_DATAA data;
    std::string pattern = joinPath(dir, "*");
    HANDLE find = FindFirstFileA(pattern.c_str(), &data);
    if (find == INVALID_HANDLE_VALUE) {
      if (GetLastError() == ERROR_FILE_NOT_FOUND) return true;
      return fail(err, "FindFirstFileA", dir);
    }
    do {
      if (std::string(data.cFileName) == "." || std::string(data.cFileName) == "..") continue;
      entries->push_back(DirectoryEntry{data.cFileName, fromFindData(data)});
    } while (FindNextFileA(find, &data));
    FindClose(find);
    std::sort(entries->begin(), entries->end(),
              [](const DirectoryEntry& a, const DirectoryEntry& b) { return lessFileName(a.name, b.name); });
    return true;
  }

  bool makeDirectory(const std::string& path, std::string* err) override {
    if (!CreateDirectoryA(path.c_str(), nullptr)) return fail(err, "CreateDirectoryA", path);
    return true;
  }

  bool removeFile(const std::string& path, std::string* err) override {
    if (!retryOnSharing([&] { return DeleteFileA(path.c_str()); })) return fail(err, "DeleteFileA", path);
    return true;
  }

  bool removeDirectory(const std::string& path, std::string* err) override {
    if (!RemoveDirectoryA(path.c_str())) return fail(err, "RemoveDirectoryA", path);
    return true;
  }

  bool renameFile(const std::string& from, const std::string& to, std::string* err) override {
    if (!retryOnSharing([&] { return MoveFileA(from.c_str(), to.c_str()); }))
      return fail(err, "MoveFileA", from + " to " + to);
    return true;
  }

  bool replaceFile(const std::string& from, const std::string& to, std::string* err) override {
    // Windows replaces no read-only file: the attribute is lifted for the moment
    // of the rename (the new version carries its own) and put back on failure.
    DWORD target = GetFileAttributesA(to.c_str());
    bool lifted = target != INVALID_FILE_ATTRIBUTES && (target & FILE_ATTRIBUTE_READONLY) != 0 &&
                  SetFileAttributesA(to.c_str(), target & ~FILE_ATTRIBUTE_READONLY);
    if (!retryOnSharing([&] { return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING); })) {
      bool failed = fail(err, "MoveFileExA", from + " to " + to);
      if (lifted) SetFileAttributesA(to.c_str(), target);
      return failed;
    }
    return true;
  }

  std::string currentDirectory() override {
    char buffer[MAX_PATH + 1];
    DWORD n = GetCurrentDirectoryA(sizeof buffer, buffer);
    return n > 0 && n < sizeof buffer ? std::string(buffer, n) : std::string(".");
  }

  bool setCurrentDirectory(const std::string& path, std::string* err) override {
    if (!SetCurrentDirectoryA(path.c_str())) return fail(err, "SetCurrentDirectoryA", path);
    return true;
  }

  std::string userName() override {
    char buffer[100];
    DWORD size = sizeof buffer;
    return GetUserNameA(buffer, &size) ? std::string(buffer) : std::string();
  }

  SystemTime localTime() override {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return fromWindows(now);
  }

  SystemTime systemTime() override {
    SYSTEMTIME now;
    GetSystemTime(&now);
    return fromWindows(now);
  }

  std::string formatDate(const SystemTime& date, DateForm form, LocaleChoice choice) override {
    SYSTEMTIME time = toWindows(date);
    char buffer[128];
    DWORD flags = (form == DateForm::Short ? DATE_SHORTDATE : DATE_LONGDATE) | overrideFlag(choice);
    int n = GetDateFormatA(localeOf(choice), flags, &time, nullptr, buffer, sizeof buffer);
    return n > 0 ? std::string(buffer) : std::string();
  }

  std::string formatTime(const SystemTime& value, LocaleChoice choice) override {
    SYSTEMTIME time = toWindows(value);
    char buffer[128];
    int n = GetTimeFormatA(localeOf(choice), overrideFlag(choice), &time, nullptr, buffer, sizeof buffer);
    return n > 0 ? std::string(buffer) : std::string();
  }

  bool openDocument(const std::string& path, std::string* err) override {
    HINSTANCE result = ShellExecuteA(nullptr, "open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    if (reinterpret_cast<INT_PTR>(result) <= 32) {
      if (err) *err = "ShellExecuteA " + path + ": error " + std::to_string(reinterpret_cast<INT_PTR>(result));
      return false;
    }
    return true;
  }
};

}  // namespace

Os& platformOs() {
  static WindowsOs instance;
  return instance;
}
