// The hits of a search that may run into hundreds of thousands: texts are kept
// back to back in large blocks and each path once, so that a run allocates
// almost nothing per hit and never moves what it has stored.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/tableau.h"
#include "navigation/quick_resu.h"

class HitList {
 public:
  void clear();
  // Hits arrive file by file: a path equal to the previous hit's is stored once.
  void add(const std::string& file, int32_t line, std::string_view text);

  size_t size() const { return hits_.size(); }
  int32_t line(size_t i) const { return hits_[i].line; }
  const std::string& file(size_t i) const { return files_[hits_[i].file]; }
  std::string_view text(size_t i) const {
    return std::string_view(blocks_[hits_[i].block]).substr(hits_[i].offset, hits_[i].length);
  }

  // Replaces the table's contents with one QuickResu per hit, in order.
  void copyTo(Tableau<QuickResu>* table) const;

 private:
  struct Hit {
    int32_t line;
    uint32_t file;
    uint32_t block;
    uint32_t offset;
    size_t length;
  };
  std::vector<std::string> files_;
  std::deque<std::string> blocks_;  // filled up to their reserved size, never grown
  std::deque<Hit> hits_;
};
