// The OS layer's shared parts: the current instance, atomic and text-mode writes, paths.
#include "foundation/os.h"

namespace {

Os* installed = nullptr;

std::string toPlatformText(const std::string& text) {
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

}  // namespace

Os& os() { return installed ? *installed : platformOs(); }

ScopedOs::ScopedOs(Os& replacement) : previous_(installed) { installed = &replacement; }

ScopedOs::~ScopedOs() { installed = previous_; }

bool Os::writeFileAtomic(const std::string& path, const std::string& data, std::string* err) {
  std::string temporary = temporaryPathFor(path);
  if (!writeFile(temporary, data, err)) {
    removeFile(temporary, nullptr);
    return false;
  }
  if (!replaceFile(temporary, path, err)) {
    removeFile(temporary, nullptr);
    return false;
  }
  return true;
}

bool Os::writeTextFile(const std::string& path, const std::string& text, std::string* err) {
  return writeFile(path, toPlatformText(text), err);
}

bool Os::writeTextFileAtomic(const std::string& path, const std::string& text, std::string* err) {
  return writeFileAtomic(path, toPlatformText(text), err);
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

std::string temporaryPathFor(const std::string& path) { return path + ".kesto-tmp"; }

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
