// The texts last entered in the QuickFind prompt, most recent first, shared by
// its four commands for the life of the add-on.
#pragma once

#include <string>
#include <vector>

// The prompt's text slot holds 255 characters and its zero.
constexpr size_t kSearchTextLimit = 255;

// A search text as the prompt keeps it: cut at the slot's width.
std::string boundedSearchText(const std::string& text);

class SearchHistory {
 public:
  static constexpr size_t kCapacity = 20;

  // Puts text first; an equal entry moves up instead of doubling, and a full
  // history drops its oldest entry. An empty text is not entered.
  void enter(const std::string& text);
  const std::vector<std::string>& entries() const { return entries_; }

 private:
  std::vector<std::string> entries_;
};
