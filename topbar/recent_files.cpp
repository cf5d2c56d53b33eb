// The recent projects and headers, and their storage.
#include "topbar/recent_files.h"

#include <algorithm>
#include <cctype>

#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "TopBar";

// Paths are kept in fixed slots: a longer one is cut to fit.
std::string slot(const std::string& path) { return path.substr(0, RecentFiles::kSlotBytes - 1); }

std::vector<std::string> loadList(const char* list, const char* maxKey, int32_t defaultMax, int32_t slots,
                                  int32_t* maximum) {
  *maximum = settings().readInteger(kSection, maxKey, defaultMax);
  std::vector<std::string> entries = settings().readList(kSection, list);
  auto missing = std::find(entries.begin(), entries.end(), SettingsStore::kMissingEntry);
  entries.erase(missing, entries.end());
  const size_t kept = static_cast<size_t>(std::max<int32_t>(0, std::min({*maximum, slots})));
  if (entries.size() > kept) entries.resize(kept);
  for (std::string& entry : entries) entry = slot(entry);
  return entries;
}

// Puts path first, dropping the last entry when the list is at its maximum.
void pushFront(std::vector<std::string>& list, const std::string& path, int32_t maximum) {
  if (maximum <= 0) return;
  if (list.size() >= static_cast<size_t>(maximum)) list.resize(static_cast<size_t>(maximum) - 1);
  list.insert(list.begin(), slot(path));
}

bool sameIgnoringCase(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::toupper(static_cast<unsigned char>(x)) == std::toupper(static_cast<unsigned char>(y));
         });
}

}  // namespace

void RecentFiles::load() {
  projects = loadList("IDE", "MaxIDE", 10, kProjectSlots, &maxProjects);
  headers = loadList("INC", "MaxINC", 50, kHeaderSlots, &maxHeaders);
}

void RecentFiles::save() const {
  settings().writeInteger(kSection, "MaxIDE", maxProjects);
  settings().writeList(kSection, "IDE", projects);
  settings().writeInteger(kSection, "MaxINC", maxHeaders);
  settings().writeList(kSection, "INC", headers);
}

void RecentFiles::forgetProject(const std::string& path) {
  auto found = std::find(projects.begin(), projects.end(), slot(path));
  if (found != projects.end()) projects.erase(found);
}

void RecentFiles::rememberProject(const std::string& path) {
  if (std::find(projects.begin(), projects.end(), slot(path)) != projects.end()) return;
  pushFront(projects, path, std::min(maxProjects, kProjectSlots));
}

bool RecentFiles::rememberHeader(const std::string& path) {
  if (path.empty() || std::toupper(static_cast<unsigned char>(path.back())) != 'H') return false;
  auto found = std::find_if(headers.begin(), headers.end(),
                            [&path](const std::string& entry) { return sameIgnoringCase(entry, slot(path)); });
  if (found != headers.end()) headers.erase(found);
  pushFront(headers, path, std::min(maxHeaders, kHeaderSlots));
  return true;
}

void RecentFiles::applyMaxima(int32_t projectMaximum, int32_t headerMaximum) {
  maxProjects = projectMaximum;
  maxHeaders = headerMaximum;
  if (projects.size() > static_cast<size_t>(std::max(0, maxProjects))) projects.resize(static_cast<size_t>(std::max(0, maxProjects)));
  if (headers.size() > static_cast<size_t>(std::max(0, maxHeaders))) headers.resize(static_cast<size_t>(std::max(0, maxHeaders)));
}

std::string withoutLineSuffix(const std::string& path) {
  if (path.size() <= 3) return path;
  size_t colon = path.find(':', 3);
  return colon == std::string::npos ? path : path.substr(0, colon);
}
