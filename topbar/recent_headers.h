// The most recently used headers that the add-on opened, newest first, kept
// in the "TopBar" settings from one run of the IDE to the next.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class RecentHeaders {
 public:
  static constexpr int32_t kDefaultMaximum = 50;  // "MaxINC"

  // "NbINC" entries of "TopBar\INC", at most "MaxINC"; the first missing entry ends the list.
  void load();
  // "NbINC", "MaxINC", then the entries; entries past the count stay in the store.
  void save() const;

  // Records a header that was opened: a ':' at position 3 or later cuts the
  // path (a line suffix goes, a drive's colon stays); a path not ending in
  // 'h' or 'H' is not a header and is left out. A listed path (compared in
  // upper case) moves to the front; a new one goes first, dropping the oldest
  // when the list is full.
  void record(const std::string& path);

  const std::vector<std::string>& entries() const { return entries_; }
  int32_t maximum() const { return maximum_; }

 private:
  std::vector<std::string> entries_;
  int32_t maximum_ = kDefaultMaximum;
};
