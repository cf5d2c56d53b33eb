// The copy routine of delivery and groupware: block by block with progress,
// and never a half-written target.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/os.h"
#include "project/host.h"

// One progress display for an action that copies several files.
class CopyProgress {
 public:
  CopyProgress(Host& host, uint64_t total);  // total: bytes of the whole action
  ~CopyProgress();                           // the host removes its display
  CopyProgress(const CopyProgress&) = delete;
  CopyProgress& operator=(const CopyProgress&) = delete;

  void advance(uint64_t bytes, const std::string& item);
  uint64_t done() const { return done_; }

 private:
  Host& host_;
  uint64_t total_;
  uint64_t done_ = 0;
};

enum class CopyFailure { None, OpenSource, CreateTarget, ReadSource, WriteTarget };

// Copies `from` to `to` in blocks of kCopyBlockSize bytes through a
// Replacement of `to` (an existing target, read-only or not, is replaced; a
// link there is replaced, not followed) that ends with the given mode and the
// source's modification time. On failure the old target is untouched, no
// temporary is left, the bytes not copied are counted as done in progress (all
// of the file's size, once it was known), and *err holds the system's words.
CopyFailure copyFileWithProgress(const std::string& from, const std::string& to, FinalMode mode,
                                 CopyProgress& progress, std::string* err);

constexpr size_t kCopyBlockSize = 16380;

// "Error in opening file " and the like: the start of the box that names the path.
const char* copyFailureText(CopyFailure failure);
