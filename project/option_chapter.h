// The add-on's chapter in the IDE's options dialog: its pages in display order,
// their dialogs and kinds, and the first page that tells the version and the system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "project/option_page.h"

struct OptionPageEntry {
  const char* title;        // shown in the IDE's list of pages
  const char* description;  // the page's own description text
  int32_t helpTopic;        // what the page's Help button shows; 0 for a page without one
};

constexpr size_t kOptionPageCount = 11;
// In display order; the dialog of the page at position n is kFirstPageDialog + n.
extern const OptionPageEntry kOptionPages[kOptionPageCount];
constexpr int32_t kFirstPageDialog = 102;
constexpr int32_t kFirstPageKind = 0x1000;
constexpr int32_t kOtherPageKind = 1;

// The dialog template and the kind of the page added after pagesBefore others.
inline int32_t optionPageDialog(size_t pagesBefore) { return kFirstPageDialog + static_cast<int32_t>(pagesBefore); }
inline int32_t optionPageKind(size_t pagesBefore) { return pagesBefore == 0 ? kFirstPageKind : kOtherPageKind; }

constexpr int32_t kVersionTextControl = 1016;
constexpr int32_t kSystemTextControl = 1017;

// The chapter's first page: the add-on's version and the system it runs on.
class FirstOptionPage : public OptionPage {
 public:
  static constexpr const char* kVersionText = "Version 1.2";

  explicit FirstOptionPage(std::string systemDescription) : system_(std::move(systemDescription)) {}
  std::vector<PageControl> controls() override;
  void show() override {}
  void store() override {}

 private:
  std::string version_ = kVersionText;
  std::string system_;
};
