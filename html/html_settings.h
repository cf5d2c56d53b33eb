// The documentation of a directory outside any project: its filters ("HTML")
// and the name its site goes by.
#pragma once

#include <string>

struct HtmlSettings {
  static constexpr const char* kDefaultFilters = "*.cpp;*.cc;*.c;*.h;*.rh";

  std::string filters = kDefaultFilters;  // "Filters"
  std::string siteName;                   // the directory's last component

  // The stored filters, else the default, and directory's name ("." names the
  // current directory).
  static HtmlSettings read(const std::string& directory);
};
