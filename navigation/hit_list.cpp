// Compact storage of search hits.
#include "navigation/hit_list.h"

#include <memory>

#include "navigation/table_fill.h"

namespace {

constexpr size_t kBlockBytes = 1 << 20;

}  // namespace

void HitList::clear() {
  files_.clear();
  blocks_.clear();
  hits_.clear();
}

void HitList::add(const std::string& file, int32_t line, std::string_view text) {
  if (files_.empty() || files_.back() != file) files_.push_back(file);
  // A text longer than a block gets a block of its own.
  if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size() < text.size()) {
    blocks_.emplace_back();
    blocks_.back().reserve(text.size() > kBlockBytes ? text.size() : kBlockBytes);
  }
  std::string& block = blocks_.back();
  hits_.push_back(Hit{line, static_cast<uint32_t>(files_.size() - 1), static_cast<uint32_t>(blocks_.size() - 1),
                      static_cast<uint32_t>(block.size()), text.size()});
  block.append(text);
}

void HitList::copyTo(Tableau<QuickResu>* table) const {
  table->clear();
  std::vector<std::unique_ptr<QuickResu>> results;
  results.reserve(hits_.size());
  for (size_t i = 0; i < hits_.size(); ++i)
    results.push_back(std::make_unique<QuickResu>(line(i), file(i), std::string(text(i))));
  appendAll(table, &results);
}
