// STAND-IN until the shared copy routine lands on main; deleted at that merge.
#pragma once

#include <cstdint>
#include <string>

#include "ide/host.h"

class CopyProgress {
 public:
  CopyProgress(Host& host, uint64_t total) : host_(host), total_(total) {}
  ~CopyProgress() {}
  void advance(uint64_t bytes, const std::string&) { done_ += bytes; }
  uint64_t done() const { return done_; }

 private:
  Host& host_;
  uint64_t total_;
  uint64_t done_ = 0;
};

enum class CopyFailure { None, OpenSource, CreateTarget, ReadSource, WriteTarget };

CopyFailure copyFileWithProgress(const std::string& from, const std::string& to, CopyProgress& progress,
                                 std::string* err);
