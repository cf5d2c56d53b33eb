// Tags from the functions scan and the class rule of the class search.
#include "navigation/tags_file.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "foundation/directory_walk.h"
#include "project/host.h"
#include "navigation/function_scan.h"
#include "navigation/line_match.h"
#include "navigation/quickfind_settings.h"
#include "navigation/search_places.h"
#include "navigation/source_text.h"
#include "navigation/text_lines.h"

namespace {

// Names are kept as the scanner found them, a trailing blank included: a tag has none.
std::string trimmed(std::string name) {
  while (!name.empty() && (name.back() == ' ' || name.back() == '\t')) name.pop_back();
  return name;
}

}  // namespace

std::string classOnLine(std::string_view line) {
  if (line.size() <= 6 || line.compare(0, 5, "class") != 0 || isIdentifierChar(line[5])) return "";
  if (line.find(';') != std::string_view::npos) return "";
  std::string name;
  for (size_t at = 5; at < line.size() && line[at] != ':' && line[at] != '{';) {
    if (!isIdentifierChar(line[at])) {
      ++at;
      continue;
    }
    size_t end = at;
    while (end < line.size() && isIdentifierChar(line[end])) ++end;
    name.assign(line.substr(at, end - at));
    at = end;
  }
  return name;
}

void collectTags(std::string_view text, const std::string& file, std::vector<TagEntry>* tags) {
  LineReader lines(text);
  std::string_view line;
  int32_t number = 0;
  std::string name;
  std::string className;
  while (lines.next(&line, &number)) {
    if (functionOnLine(line, &name, &className)) {
      std::string tag = trimmed(name);
      if (!tag.empty()) tags->push_back(TagEntry{tag, file, number, 'f', trimmed(className)});
    } else if (std::string defined = classOnLine(line); !defined.empty()) {
      tags->push_back(TagEntry{defined, file, number, 'c', ""});
    }
  }
}

std::vector<TagEntry> treeTags(Host& host, const std::string& root, const QuickFindSettings& settings) {
  std::vector<TagEntry> tags;
  DirectoryWalker walker(settings.recurse);
  std::set<std::string> seen;
  std::string text;
  std::string err;
  std::vector<std::string> masks = splitSearchList(settings.includeMask + ";" + settings.functionMask);
  for (const std::string& mask : masks) {
    walker.walk(root, mask, [&](const std::string& path) {
      if (!seen.insert(path).second) return true;
      if (readSourceText(host, path, &text, &err))
        collectTags(text, path, &tags);
      else
        walker.skip(path, err);
      return true;
    });
  }
  if (!walker.skipped().empty()) host.showStatus(skippedPathsText(walker.skipped()));
  return tags;
}

std::string tagsFileText(std::vector<TagEntry> tags) {
  std::sort(tags.begin(), tags.end(), [](const TagEntry& a, const TagEntry& b) {
    return std::tie(a.name, a.file, a.line) < std::tie(b.name, b.file, b.line);
  });
  std::string text =
      "!_TAG_FILE_FORMAT\t2\t/extended format/\n"
      "!_TAG_FILE_SORTED\t1\t/0=unsorted, 1=sorted, 2=foldcase/\n"
      "!_TAG_PROGRAM_NAME\tkesto\t//\n";
  for (const TagEntry& tag : tags) {
    std::string number = std::to_string(tag.line);
    text += tag.name + '\t' + tag.file + '\t' + number + ";\"\tkind:" + tag.kind + "\tline:" + number;
    if (!tag.className.empty()) text += "\tclass:" + tag.className;
    text += '\n';
  }
  return text;
}
