// Loading keywords and matching a prefix by two binary searches.
#include "completion/completion_engine.h"

#include <algorithm>

#include "foundation/os.h"
#include "foundation/settings.h"

namespace {

// The first n bytes of a keyword, the part compared with a prefix of length n.
std::string_view head(const KeywordEntry& entry, size_t n) { return entry.keyword.substr(0, n); }

}  // namespace

void CompletionEngine::readSettings() {
  SettingsStore& store = settings();
  enabled = store.readInteger(kSection, "Enabled", 1) != 0;
  keyCode = store.readInteger(kSection, "KeyCode", 222);
  store.readString(kSection, "TextCode", &textCode, "???");
  files.clear();
  for (const std::string& entry : store.readList(kSection, kFilesList))
    if (entry != SettingsStore::kMissingEntry) files.push_back(entry);
}

bool CompletionEngine::writeSettings() const {
  SettingsStore& store = settings();
  bool ok = store.writeInteger(kSection, "Enabled", enabled ? 1 : 0);
  ok = store.writeInteger(kSection, "KeyCode", keyCode) && ok;
  ok = store.writeString(kSection, "TextCode", textCode) && ok;
  return store.writeList(kSection, kFilesList, files) && ok;
}

bool CompletionEngine::load(std::string* err, std::vector<std::string>* damaged) {
  keywords_.clear();
  fileBytes_.clear();
  lastMatch_ = -1;
  err->clear();
  for (const std::string& path : files) {
    std::string bytes;
    std::string reason;
    if (!os().readFile(path, &bytes, &reason)) {
      *err += (err->empty() ? "" : "; ") + std::string("keyword file skipped: ") + reason;
      continue;
    }
    size_t line = 0;
    if (damaged && !keywordFileIsSound(bytes, &line, &reason))
      damaged->push_back(path + ":" + std::to_string(line) + ": " + reason);
    fileBytes_.push_back(std::move(bytes));
    parseKeywordFile(fileBytes_.back(), &keywords_);
  }
  // string_view compares bytes as unsigned values, the order the searches rely on.
  std::stable_sort(keywords_.begin(), keywords_.end(),
                   [](const KeywordEntry& a, const KeywordEntry& b) { return a.keyword < b.keyword; });
  return err->empty();
}

CompletionMatch CompletionEngine::complete(std::string_view prefix, std::string* text) {
  text->clear();
  const size_t n = prefix.size();
  auto first = std::lower_bound(keywords_.begin(), keywords_.end(), prefix,
                                [n](const KeywordEntry& entry, std::string_view p) { return head(entry, n) < p; });
  if (first == keywords_.end() || head(*first, n) != prefix) return kNoMatch;
  auto last = std::upper_bound(first, keywords_.end(), prefix,
                               [n](std::string_view p, const KeywordEntry& entry) { return p < head(entry, n); }) -
              1;
  lastMatch_ = static_cast<int32_t>(first - keywords_.begin());
  if (first == last) {
    *text = std::string(first->keyword.substr(n));
    status_ = "Completion complete";
    return kUniqueMatch;
  }
  // In a sorted run, what the first and the last keyword share, all of them share.
  std::string_view a = first->keyword.substr(n);
  std::string_view b = last->keyword.substr(n);
  size_t shared = std::mismatch(a.begin(), a.begin() + std::min(a.size(), b.size()), b.begin()).first - a.begin();
  *text = std::string(a.substr(0, shared));
  status_ = "Possible :";
  for (auto it = first; it <= last; ++it) {
    size_t added = (it == first ? 0 : 2) + it->keyword.size();
    if (status_.size() + added > kMaxStatusText) break;
    if (it != first) status_ += ", ";
    status_.append(it->keyword.data(), it->keyword.size());
  }
  return kSeveralMatches;
}
