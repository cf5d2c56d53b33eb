// What a site of a bare directory is built with.
#include "html/html_settings.h"

#include "foundation/os.h"
#include "foundation/settings.h"

HtmlSettings HtmlSettings::read(const std::string& directory) {
  HtmlSettings html;
  settings().readString("HTML", "Filters", &html.filters, kDefaultFilters);
  std::string trimmed = directory;
  while (trimmed.size() > 1 && trimmed.back() == kPathSeparator) trimmed.pop_back();
  html.siteName = fileNameOf(trimmed);
  if (html.siteName.empty() || html.siteName == ".") html.siteName = fileNameOf(os().currentDirectory());
  return html;
}
