// The site record as text: a header, the inputs' digest, then "SIZE TIME NAME" per page.
#include "html/ht_site_record.h"

#include <cstdlib>
#include <string_view>

#include "foundation/os.h"

namespace {

constexpr std::string_view kHeader = "kesto html site\ninputs ";

// The decimal number at the start of *line, moved past it and the blank after it.
bool takeNumber(std::string_view* line, int64_t* number) {
  size_t blank = line->find(' ');
  if (blank == 0 || blank == std::string_view::npos) return false;
  std::string digits(line->substr(0, blank));
  char* end = nullptr;
  *number = std::strtoll(digits.c_str(), &end, 10);
  line->remove_prefix(blank + 1);
  return *end == '\0';
}

}  // namespace

std::string htSiteRecordPath(const std::string& siteDirectory) { return joinPath(siteDirectory, ".kesto-site"); }

bool readHtSiteRecord(const std::string& siteDirectory, htSiteRecord* record) {
  std::string bytes;
  if (!os().readFile(htSiteRecordPath(siteDirectory), &bytes, nullptr)) return false;
  std::string_view text(bytes);
  if (text.substr(0, kHeader.size()) != kHeader) return false;
  text.remove_prefix(kHeader.size());
  size_t end = text.find('\n');
  if (end == std::string_view::npos) return false;
  record->inputs = std::string(text.substr(0, end));
  record->pages.clear();
  for (text.remove_prefix(end + 1); !text.empty(); text.remove_prefix(end + 1)) {
    end = text.find('\n');
    if (end == std::string_view::npos) return false;
    std::string_view line = text.substr(0, end);
    int64_t size = 0;
    htRecordedPage page;
    if (!takeNumber(&line, &size) || size < 0 || !takeNumber(&line, &page.modified) || line.empty()) return false;
    page.size = static_cast<uint64_t>(size);
    page.name = std::string(line);
    record->pages.push_back(std::move(page));
  }
  return true;
}

bool writeHtSiteRecord(const std::string& siteDirectory, const htSiteRecord& record, std::string* err) {
  std::string text(kHeader);
  text += record.inputs + "\n";
  for (const htRecordedPage& page : record.pages) {
    if (page.name.find('\n') != std::string::npos) {
      if (err) *err = "a page name holds a line end: " + page.name;
      return false;
    }
    text += std::to_string(page.size) + " " + std::to_string(page.modified) + " " + page.name + "\n";
  }
  return os().writeFileAtomic(htSiteRecordPath(siteDirectory), text, err);
}

bool htRecordedPagesIntact(const std::string& siteDirectory, const htSiteRecord& record) {
  for (const htRecordedPage& page : record.pages) {
    FileAttributes attributes;
    if (!os().attributes(joinPath(siteDirectory, page.name), &attributes, nullptr) || attributes.isDirectory ||
        attributes.size != page.size || attributes.modified != page.modified)
      return false;
  }
  return true;
}
