// The add-on's chapter in the IDE's options dialog: its pages in table order.
#pragma once

#include <windows.h>

#include <vector>

#include "ide/addon_page_win32.h"

class IMpdChapterAddon : public IUnknownImp<IMpdChapter> {
 public:
  static constexpr const char* kTitle = "Kesto AddOn";

  // Makes the add-on's pages, in the order of the page table.
  explicit IMpdChapterAddon(HINSTANCE instance);

  IIdeString* __stdcall Title() override;
  long __stdcall PageCount() override { return static_cast<long>(pages_.size()); }
  IMpdPage* __stdcall Page(long index) override;

 private:
  ~IMpdChapterAddon() override;
  // Appends a page: its dialog and kind follow from the pages already in the chapter.
  void append(HINSTANCE instance, PageBehaviour behaviour);

  // One reference held on each page, given back when the chapter goes.
  std::vector<AddonPageBase*> pages_;
};

// The chapter's page behaviours, in the order of the page table.
std::vector<PageBehaviour> addonPageBehaviours();
