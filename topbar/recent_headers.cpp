// Loading, saving and updating the recent headers list.
#include "topbar/recent_headers.h"

#include <algorithm>

#include "foundation/settings.h"
#include "ide/editor_title.h"

namespace {

constexpr const char* kSection = "TopBar";
constexpr const char* kList = "INC";

}  // namespace

void RecentHeaders::load() {
  maximum_ = settings().readInteger(kSection, "MaxINC", kDefaultMaximum);
  entries_ = settings().readList(kSection, kList);
  const auto missing = std::find(entries_.begin(), entries_.end(), SettingsStore::kMissingEntry);
  entries_.erase(missing, entries_.end());
  if (static_cast<int32_t>(entries_.size()) > maximum_) entries_.resize(static_cast<size_t>(std::max(maximum_, 0)));
}

void RecentHeaders::save() const {
  settings().writeInteger(kSection, "NbINC", static_cast<int32_t>(entries_.size()));
  settings().writeInteger(kSection, "MaxINC", maximum_);
  for (size_t i = 0; i < entries_.size(); ++i)
    settings().writeString(std::string(kSection) + "\\" + kList, "Entry" + std::to_string(i), entries_[i]);
}

void RecentHeaders::record(const std::string& path) {
  std::string header = path;
  if (header.size() > 3) {
    const size_t colon = header.find(':', 3);
    if (colon != std::string::npos) header.resize(colon);
  }
  if (header.empty() || (header.back() != 'h' && header.back() != 'H')) return;
  const std::string upper = asciiUpper(header);
  auto listed = std::find_if(entries_.begin(), entries_.end(),
                             [&](const std::string& entry) { return asciiUpper(entry) == upper; });
  if (listed != entries_.end()) {
    entries_.erase(listed);
  } else if (maximum_ > 0 && static_cast<int32_t>(entries_.size()) >= maximum_) {
    entries_.resize(static_cast<size_t>(maximum_) - 1);
  }
  entries_.insert(entries_.begin(), header);
}
