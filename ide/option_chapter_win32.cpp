// The chapter object: builds its pages and hands them to the IDE.
#include "ide/option_chapter_win32.h"

#include <new>

#include "win32/ide_access_win32.h"

IMpdChapterAddon::IMpdChapterAddon(HINSTANCE instance) : IUnknownImp(ide_iid::kMpdChapter) {
  for (PageBehaviour& behaviour : addonPageBehaviours()) append(instance, std::move(behaviour));
}

IMpdChapterAddon::~IMpdChapterAddon() {
  for (AddonPageBase* page : pages_) page->Release();
}

void IMpdChapterAddon::append(HINSTANCE instance, PageBehaviour behaviour) {
  const size_t before = pages_.size();
  if (before >= kOptionPageCount) return;
  auto* page = new (std::nothrow)
      AddonPageBase(instance, optionPageDialog(before), optionPageKind(before), kOptionPages[before], std::move(behaviour));
  if (page) pages_.push_back(page);
}

IIdeString* __stdcall IMpdChapterAddon::Title() { return makeIdeString(kTitle); }

IMpdPage* __stdcall IMpdChapterAddon::Page(long index) {
  if (index < 0 || static_cast<size_t>(index) >= pages_.size()) return nullptr;
  pages_[static_cast<size_t>(index)]->AddRef();
  return pages_[static_cast<size_t>(index)];
}
