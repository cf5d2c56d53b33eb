// The prompt's history.
#include "navigation/search_history.h"

#include <algorithm>

std::string boundedSearchText(const std::string& text) { return text.substr(0, kSearchTextLimit); }

void SearchHistory::enter(const std::string& text) {
  if (text.empty()) return;
  auto equal = std::find(entries_.begin(), entries_.end(), text);
  if (equal != entries_.end())
    entries_.erase(equal);
  else if (entries_.size() >= kCapacity)
    entries_.pop_back();
  entries_.insert(entries_.begin(), text);
}
