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

bool keywordFileIsSound(std::string_view bytes, size_t* line, std::string* reason) {
  *line = 0;
  for (size_t start = 0; start < bytes.size();) {
    ++*line;
    size_t end = bytes.find('\n', start);
    std::string_view text = bytes.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start);
    if (text.find('\0') != std::string_view::npos) {
      *reason = "a zero byte: this is not a text file";
      return false;
    }
    if (!text.empty() && text.front() == '|') {
      *reason = "an entry with no keyword before \"|\"";
      return false;
    }
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  return true;
}
