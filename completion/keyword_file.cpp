// Reading keyword files line by line, as the add-on has always read them.
#include "completion/keyword_file.h"

#include "completion/read_lines.h"

namespace {

void addEntry(std::string_view line, std::vector<KeywordEntry>* entries) {
  while (!line.empty() && static_cast<unsigned char>(line.back()) < 14) line.remove_suffix(1);
  if (line.empty() || line.front() == '[') return;
  size_t bar = line.find('|');
  if (bar == std::string_view::npos)
    entries->push_back({line, {}});
  else
    entries->push_back({line.substr(0, bar), line.substr(bar + 1)});
}

}  // namespace

void parseKeywordFile(std::string_view bytes, std::vector<KeywordEntry>* entries) {
  forEachReadLine(bytes, kKeywordLineText, [entries](std::string_view line) { addEntry(line, entries); });
}
