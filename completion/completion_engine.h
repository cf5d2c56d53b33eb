// The completion engine: the keyword list loaded from the keyword files, the
// completion settings and the matching of a prefix.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "completion/keyword_file.h"

enum CompletionMatch : int { kNoMatch = 0, kUniqueMatch = 1, kSeveralMatches = 2 };

class CompletionEngine {
 public:
  static constexpr const char* kSection = "Completion";
  static constexpr const char* kFilesList = "Files";
  static constexpr size_t kMaxStatusText = 1023;

  CompletionEngine() = default;
  CompletionEngine(const CompletionEngine&) = delete;
  CompletionEngine& operator=(const CompletionEngine&) = delete;

  // The "Completion" settings and the keyword file list, with their defaults;
  // entries that read "not found" are left out of the list.
  void readSettings();
  // Writes them back; false when the store refused a value.
  bool writeSettings() const;

  bool enabled = true;
  int32_t keyCode = 222;
  std::string textCode = "???";
  std::vector<std::string> files;  // keyword file paths, in list order

  // Empties the keyword list and reads every file of the list in order; a file
  // that cannot be read is skipped, and named with its reason in *err (false).
  // The list is then sorted by keyword bytes, keywords that are equal keeping
  // their file order. With damaged given, each file that keywordFileIsSound
  // refuses is named there as "PATH:LINE: reason" (and read all the same).
  bool load(std::string* err, std::vector<std::string>* damaged = nullptr);

  // Matches prefix against the keywords. The text is what the matches share
  // beyond the prefix; statusText() and lastMatch() tell the rest.
  CompletionMatch complete(std::string_view prefix, std::string* text);

  const std::string& statusText() const { return status_; }
  // Index of the first matching keyword of the last successful match; -1 before one.
  int32_t lastMatch() const { return lastMatch_; }
  size_t keywordCount() const { return keywords_.size(); }
  const KeywordEntry& keyword(size_t index) const { return keywords_[index]; }

  // The description last shown, which tells a repeated request. Hosts that do
  // not live between requests keep it themselves.
  const std::string& lastShownDescription() const { return lastShown_; }
  void setLastShownDescription(const std::string& description) { lastShown_ = description; }

 private:

  std::deque<std::string> fileBytes_;  // a deque: growing it never moves the bytes the entries view
  std::vector<KeywordEntry> keywords_;
  int32_t lastMatch_ = -1;
  std::string status_;
  std::string lastShown_;
};
