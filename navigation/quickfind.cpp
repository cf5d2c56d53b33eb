// The three definition searches of QuickFind and the walk that they share with the cross reference.
#include "navigation/quickfind.h"

#include <cctype>

#include "project/host.h"
#include "foundation/directory_walk.h"
#include "navigation/line_match.h"
#include "navigation/name_lines.h"
#include "navigation/navigation_menus.h"
#include "navigation/search_places.h"
#include "navigation/source_text.h"
#include "navigation/table_fill.h"

namespace {

std::vector<std::string> resolved(const SearchPlaces& places, const std::string& list) {
  std::vector<std::string> dirs;
  for (const std::string& entry : splitSearchList(list)) dirs.push_back(searchDirectory(places, entry));
  return dirs;
}

// The project directory, then the source path.
std::vector<std::string> functionDirectories(const SearchPlaces& places) {
  std::vector<std::string> dirs{places.projectDirectory};
  if (places.projectOpen && !places.sourcePath.empty())
    for (const std::string& dir : resolved(places, places.sourcePath)) dirs.push_back(dir);
  return dirs;
}

// The project directory is written twice with nothing between, so the first
// entry names no directory and only the include and source paths are searched.
std::vector<std::string> classDirectories(const SearchPlaces& places) {
  std::string list = places.projectDirectory + places.projectDirectory;
  if (places.projectOpen) {
    if (!places.includePath.empty()) list += ";" + places.includePath;
    if (!places.sourcePath.empty()) list += ";" + places.sourcePath;
  }
  return resolved(places, list);
}

// The IDE is handed upper-cased paths on Windows; other file systems keep case.
void normalizeFoundPath(std::string* path) {
#ifdef _WIN32
  for (char& c : *path) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
#else
  (void)path;
#endif
}

bool failed(Host& host, const char* text) {
  host.beep(220, 500);
  host.showStatus(text);
  return false;
}

}  // namespace

std::vector<std::string> QuickFind::functionMasks() const { return splitSearchList(settings_.functionMask); }

bool QuickFind::walk(Host& host, const std::string& name, const std::vector<std::string>& dirs,
                     const std::vector<std::string>& masks, const LineVisitor& visit) {
  DirectoryWalker walker(settings_.recurse);
  NameLines lines(name);
  std::string text;
  std::string err;
  auto visitFile = [&](const std::string& path) {
    if (!readSourceText(host, path, &text, &err)) walker.skip(path, err);
    return lines.visit(text, [&](std::string_view line, int32_t number) { return visit(path, line, number); });
  };
  bool finished = true;
  for (size_t d = 0; d < dirs.size() && finished; ++d)
    for (size_t m = 0; m < masks.size() && finished; ++m) finished = walker.walk(dirs[d], masks[m], visitFile);
  if (!walker.skipped().empty()) host.showStatus(skippedPathsText(walker.skipped()));
  return finished;
}

bool QuickFind::firstHit(Host& host, const std::string& name, const std::vector<std::string>& dirs,
                         const std::vector<std::string>& masks, bool (*matches)(std::string_view, std::string_view),
                         QuickHit* hit) {
  host.setBusy(true);
  std::string status = "Searching " + name + " ...";
  host.showStatus(status);
  bool found = !walk(host, name, dirs, masks, [&](const std::string& file, std::string_view line, int32_t number) {
    if (!matches(line, name)) return true;
    *hit = QuickHit{file, number, std::string(line)};
    return false;
  });
  host.showStatus(status + (found ? " Found !" : " sorry !"));
  host.setBusy(false);
  if (!found) return false;
  normalizeFoundPath(&hit->file);
  host.showStatus(hit->file + " : " + std::to_string(hit->line));
  return true;
}

bool QuickFind::findFunction(Host& host, const std::string& name, const std::string& editorFile, QuickHit* hit) {
  SearchPlaces places = searchPlaces(host, editorFile);
  return firstHit(host, name, functionDirectories(places), functionMasks(), matchesFunctionLine, hit) ||
         failed(host, "Sorry, cannot find function...");
}

bool QuickFind::findClass(Host& host, const std::string& name, const std::string& editorFile, QuickHit* hit) {
  SearchPlaces places = searchPlaces(host, editorFile);
  std::string masks = settings_.includeMask;
  if (!masks.empty() && !settings_.functionMask.empty()) masks += ";";
  masks += settings_.functionMask;
  return firstHit(host, name, classDirectories(places), splitSearchList(masks), matchesClassLine, hit) ||
         failed(host, "Sorry, cannot find class ...");
}

bool QuickFind::findMethods(Host& host, const std::string& name, const std::string& editorFile) {
  host.setBusy(true);
  host.showStatus("Searching " + name + " ...");
  methodResults_.clear();
  // Only the first directory of the function search, the project directory,
  // is walked: its walk uses up the mask list.
  std::vector<std::string> dirs{searchPlaces(host, editorFile).projectDirectory};
  std::string text;
  std::vector<std::unique_ptr<QuickResu>> hits;
  walk(host, name, dirs, functionMasks(), [&](const std::string& file, std::string_view line, int32_t number) {
    if (matchesMethodLine(line, name, &text)) hits.push_back(std::make_unique<QuickResu>(number, file, text));
    return true;
  });
  appendAll(&methodResults_, &hits);
  host.setBusy(false);
  return methodResults_.count() > 0 || failed(host, "Sorry, cannot find method ...");
}

MenuModel QuickFind::menu() const { return quickFindMenu(settings_.keys, settings_.keyTexts); }

MenuModel QuickFind::methodResultsMenu() const { return resultsMenu(methodResults_); }
