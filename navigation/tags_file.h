// An editors' tags file of a source tree: every function, method and class
// that the scanner finds, in the sorted extended format that editors read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class Host;
struct QuickFindSettings;

struct TagEntry {
  std::string name;
  std::string file;
  int32_t line = 0;
  char kind = 'f';        // 'f' a function or method, 'c' a class
  std::string className;  // a method's class
};

// The class that a line defines as the class search reads it: "class" in
// column one and no ';'. Its name is the last word before a ':' or '{' (a
// macro may stand before it); "" for any other line.
std::string classOnLine(std::string_view line);

// Appends the tags of one source text, in file order.
void collectTags(std::string_view text, const std::string& file, std::vector<TagEntry>* tags);

// The tags of every file of root that QuickFind's header and source masks
// match (each file once), descending as its "Recurse" setting says. Files are
// named as the walk names them; those it skips are named on the status line.
std::vector<TagEntry> treeTags(Host& host, const std::string& root, const QuickFindSettings& settings);

// The whole file: the header lines, then one line per tag sorted by name,
// file and line in byte order, so that an editor can search it by halves.
std::string tagsFileText(std::vector<TagEntry> tags);
