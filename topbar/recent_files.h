// The bar's two most-recently-used lists: the projects the IDE opened and the
// headers the add-on opened, kept in the "TopBar" settings between runs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class RecentFiles {
 public:
  static constexpr int32_t kProjectSlots = 50;
  static constexpr int32_t kHeaderSlots = 199;
  static constexpr size_t kSlotBytes = 255;  // a path and its terminator

  std::vector<std::string> projects;  // newest first
  std::vector<std::string> headers;   // most recently used first
  int32_t maxProjects = 10;           // "MaxIDE"
  int32_t maxHeaders = 50;            // "MaxINC"

  // A list is cut at the smaller of its count and maximum, and at its first missing entry.
  void load();
  // Entries past a shortened list stay in the store, unread.
  void save() const;

  // A project opened in the IDE is not offered as a recent one.
  void forgetProject(const std::string& path);
  // Puts path first unless the list holds it already (exact comparison), which
  // then keeps its place; a full list drops its last entry first.
  void rememberProject(const std::string& path);
  // A header (a path ending in "h") moves or enters first, compared without
  // case; false for any other file, which never enters the list.
  bool rememberHeader(const std::string& path);
  // After the maxima changed on the options page: the lists are cut to them.
  void applyMaxima(int32_t projectMaximum, int32_t headerMaximum);
};

// An editor's path without its ":LINE" suffix: cut at a ':' at position 3 or
// later, so that a drive letter's colon stays.
std::string withoutLineSuffix(const std::string& path);
