// The OS layer's shared parts: the current instance, replacements, waiting
// locks, text-mode writes, paths.
#include "foundation/os.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>

namespace {

const char kTemporaryMark[] = ".kesto-tmp-";
const char kLockMark[] = ".kesto-lock";

// A fresh token for a temporary name. It need not be secret: the temporary is
// created exclusively, so a name someone planted something at is only skipped.
std::string uniqueToken() {
  static uint64_t counter = 0;
  uint64_t x = static_cast<uint64_t>(std::chrono::high_resolution_clock::now().time_since_epoch().count()) ^
               (reinterpret_cast<uintptr_t>(&counter) << 16) ^ (++counter * 0x9e3779b97f4a7c15ULL);
  // splitmix64's finaliser spreads the bits.
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
  x ^= x >> 31;
  static const char kDigits[] = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::string token;
  for (int i = 0; i < 8; ++i, x /= 36) token += kDigits[x % 36];
  return token;
}

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string hiddenSibling(const std::string& path, const std::string& suffix) {
  return joinPath(directoryOf(path), "." + fileNameOf(path) + suffix);
}

Os* installed = nullptr;

// The locks this process holds, so that taking one again (a save inside a
// command that holds the file from its read on) nests instead of waiting for itself.
struct HeldLock {
  std::unique_ptr<OsLock> lock;
  int depth = 0;
};
std::mutex heldLocksGuard;
std::map<std::string, HeldLock> heldLocks;

class NestedLock : public OsLock {
 public:
  explicit NestedLock(std::string path) : path_(std::move(path)) {}
  ~NestedLock() override {
    std::lock_guard<std::mutex> guard(heldLocksGuard);
    auto held = heldLocks.find(path_);
    if (held != heldLocks.end() && --held->second.depth == 0) heldLocks.erase(held);
  }

 private:
  std::string path_;
};

}  // namespace

std::string platformText(const std::string& text) {
#ifdef _WIN32
  std::string out;
  out.reserve(text.size() + text.size() / 16);
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
#else
  return text;
#endif
}

Os& os() { return installed ? *installed : platformOs(); }

ScopedOs::ScopedOs(Os& replacement) : previous_(installed) { installed = &replacement; }

ScopedOs::~ScopedOs() { installed = previous_; }

Replacement::~Replacement() {
  if (temporary_.empty()) return;
  // Windows deletes no open file, nor a read-only one.
  file_.reset();
  os().setReadOnly(temporary_, false, nullptr);
  os().removeFile(temporary_, nullptr);
}

bool Replacement::open(const std::string& target, FinalMode mode, std::string* err, bool executable) {
  target_ = target;
  for (int attempt = 0; attempt < 100; ++attempt) {
    std::string temporary = temporaryPathFor(target, uniqueToken());
    bool existed = false;
    file_ = os().createNewFile(temporary, target, mode, executable, &existed, err);
    if (file_) {
      temporary_ = temporary;
      return true;
    }
    if (!existed) return false;
  }
  if (err) *err = "cannot create a temporary file beside " + target + ": every name tried is taken";
  return false;
}

bool Replacement::commit(std::string* err) {
  if (!file_->close(err) || !os().replaceFile(temporary_, target_, err)) return false;
  temporary_.clear();
  return true;
}

std::unique_ptr<OsLock> Os::lock(const std::string& path, std::string* err) {
  {
    std::lock_guard<std::mutex> guard(heldLocksGuard);
    auto held = heldLocks.find(path);
    if (held != heldLocks.end()) {
      ++held->second.depth;
      return std::make_unique<NestedLock>(path);
    }
  }
  std::unique_ptr<OsLock> lock;
  int waited = 0;
  int pause = 5;
  for (;;) {
    LockAttempt attempt = tryLock(path, &lock, err);
    if (attempt == LockAttempt::Failed) return nullptr;
    if (attempt == LockAttempt::Taken) break;
    if (waited >= lockWaitMilliseconds) {
      if (err)
        *err = path + " is in use by another process; gave up after waiting " +
               std::to_string(lockWaitMilliseconds / 1000) + " s (try again when it is done)";
      return nullptr;
    }
    sleepMilliseconds(pause);
    waited += pause;
    if (pause < 100) pause *= 2;
  }
  std::lock_guard<std::mutex> guard(heldLocksGuard);
  heldLocks[path] = HeldLock{std::move(lock), 1};
  return std::make_unique<NestedLock>(path);
}

bool Os::writeFileAtomic(const std::string& path, const std::string& data, FinalMode mode, std::string* err) {
  Replacement replacement;
  return replacement.open(path, mode, err) && replacement.file().write(data.data(), data.size(), err) &&
         replacement.commit(err);
}

bool Os::setReadOnlyOrReplace(const std::string& path, bool readOnly, std::string* err) {
  std::string refused;
  if (setReadOnly(path, readOnly, &refused)) return true;
  FileAttributes attributes;
  std::string data;
  // A link is never replaced by a copy of what it points at: that could publish a private file.
  if (!this->attributes(path, &attributes, nullptr) || attributes.isLink || !readFile(path, &data, nullptr)) {
    if (err) *err = refused;
    return false;
  }
  Replacement replacement;
  std::string why;
  if (replacement.open(path, readOnly ? FinalMode::ReadOnly : FinalMode::Writable, &why) &&
      replacement.file().write(data.data(), data.size(), &why) &&
      replacement.file().setModified(attributes.modified, &why) && replacement.commit(&why))
    return true;
  if (err) *err = refused + "; " + why;
  return false;
}

bool Os::writeTextFileAtomic(const std::string& path, const std::string& text, std::string* err) {
  return writeFileAtomic(path, platformText(text), err);
}

bool Os::readTextFile(const std::string& path, std::string* text, std::string* err) {
  if (!readFile(path, text, err)) return false;
#ifdef _WIN32
  std::string out;
  out.reserve(text->size());
  for (size_t i = 0; i < text->size(); ++i)
    if (!((*text)[i] == '\r' && i + 1 < text->size() && (*text)[i + 1] == '\n')) out += (*text)[i];
  *text = out;
#endif
  return true;
}

bool Os::makeDirectories(const std::string& path, std::string* err) {
  if (path.empty() || exists(path)) return true;
  std::string parent = directoryOf(path);
  if (parent != path && !makeDirectories(parent, err)) return false;
  return makeDirectory(path, err);
}

std::string temporaryPathFor(const std::string& path, const std::string& token) {
  return hiddenSibling(path, kTemporaryMark + token);
}

bool isTemporaryName(const std::string& fileName) {
  return !fileName.empty() && fileName[0] == '.' && fileName.find(kTemporaryMark) != std::string::npos;
}

std::string lockFilePathFor(const std::string& path) { return hiddenSibling(path, kLockMark); }

bool isLockFileName(const std::string& fileName) {
  return !fileName.empty() && fileName[0] == '.' && endsWith(fileName, kLockMark);
}

std::string joinPath(const std::string& dir, const std::string& name) {
  if (dir.empty()) return name;
  char last = dir.back();
  if (last == kPathSeparator || last == '/') return dir + name;
  return dir + kPathSeparator + name;
}

bool isAbsolutePath(const std::string& path) {
  if (!path.empty() && (path[0] == '/' || path[0] == '\\')) return true;
  return path.size() >= 2 && path[1] == ':';
}

std::string directoryOf(const std::string& path) {
  size_t cut = path.find_last_of(kPathSeparator == '/' ? "/" : "/\\");
  if (cut == std::string::npos) return "";
  if (cut == 0) return path.substr(0, 1);
  return path.substr(0, cut);
}

std::string fileNameOf(const std::string& path) {
  size_t cut = path.find_last_of(kPathSeparator == '/' ? "/" : "/\\");
  return cut == std::string::npos ? path : path.substr(cut + 1);
}
