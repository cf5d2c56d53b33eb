// Temporary test directories through the real OS layer.
#include "support/temp_dir.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <string>

namespace {

void removeTree(const std::string& path) {
  Os& real = platformOs();
  FileAttributes attributes;
  if (!real.attributes(path, &attributes, nullptr)) return;
  if (!attributes.isDirectory) {
    real.setReadOnly(path, false, nullptr);
    real.removeFile(path, nullptr);
    return;
  }
  std::vector<DirectoryEntry> entries;
  real.listDirectory(path, &entries, nullptr);
  for (const DirectoryEntry& entry : entries) removeTree(joinPath(path, entry.name));
  real.removeDirectory(path, nullptr);
}

void collectTemporaries(const std::string& path, std::string* found) {
  std::vector<DirectoryEntry> entries;
  platformOs().listDirectory(path, &entries, nullptr);
  for (const DirectoryEntry& entry : entries) {
    if (isTemporaryName(entry.name)) *found += (found->empty() ? "" : " ") + joinPath(path, entry.name);
    if (isWalkableDirectory(entry)) collectTemporaries(joinPath(path, entry.name), found);
  }
}

std::string temporaryRoot() {
  for (const char* name : {"TMPDIR", "TEMP", "TMP"})
    if (const char* value = std::getenv(name); value && *value) return value;
#ifdef _WIN32
  return ".";
#else
  return "/tmp";
#endif
}

}  // namespace

TempDir::TempDir() {
  static std::atomic<int> counter{0};
  auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
  path_ = joinPath(temporaryRoot(), "kesto-test-" + std::to_string(stamp) + "-" + std::to_string(counter++));
  platformOs().makeDirectory(path_, nullptr);
}

TempDir::~TempDir() {
  // Opening a project makes its directory the current one, and Windows keeps
  // the current directory of a process from being removed.
  Os& real = platformOs();
  if (real.currentDirectory().rfind(path_, 0) == 0) real.setCurrentDirectory(temporaryRoot(), nullptr);
  removeTree(path_);
}

void TempDir::write(const std::string& relative, const std::string& data) const {
  std::string full = file(relative);
  platformOs().makeDirectories(directoryOf(full), nullptr);
  platformOs().writeFile(full, data, nullptr);
}

std::string TempDir::read(const std::string& relative) const {
  std::string data;
  platformOs().readFile(file(relative), &data, nullptr);
  return data;
}

std::string TempDir::temporariesLeft() const {
  std::string found;
  collectTemporaries(path_, &found);
  return found;
}
