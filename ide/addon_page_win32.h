// A page of the add-on's options chapter as the IDE sees it: a thin Win32 view
// that moves values between a dialog's controls and the page's presenter.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "win32/ide_api_win32.h"
#include "project/option_chapter.h"
#include "project/option_page.h"

// What makes one page of the add-on: its presenter, made afresh from the
// add-on's objects each time the page is shown (null when a feature object is
// missing: the page then shows nothing and accepts), and what the add-on does
// around the presenter.
struct PageBehaviour {
  std::function<std::unique_ptr<OptionPage>()> make;
  // After the presenter stored: what the add-on's windows and the project must follow.
  std::function<void(OptionPage&)> stored;
  // A button or a double click the presenter leaves to the add-on (file
  // dialogs, prompts); true when handled.
  std::function<bool(OptionPage&, HWND page, int32_t id)> command;
};

class AddonPageBase : public IUnknownImp<IMpdPage> {
 public:
  AddonPageBase(HINSTANCE instance, int32_t dialogId, int32_t kind, const OptionPageEntry& entry,
                PageBehaviour behaviour);

  IIdeString* __stdcall Title() override;
  HWND __stdcall CreatePage(HWND parent) override;
  IIdeString* __stdcall ControlHint(int controlId) override;
  BOOL __stdcall Check() override;
  void __stdcall Store() override;
  IIdeString* __stdcall Description() override;
  long __stdcall Kind() override { return kind_; }
  long __stdcall DialogId() override { return dialogId_; }

 private:
  static INT_PTR CALLBACK dialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
  void onInit(HWND dialog);
  void onCommand(int32_t id, UINT notification);
  // Takes the control's value into its field; false when nothing changed hands.
  bool pull(const PageControl& control, UINT notification);
  // Every control from its field, but for the one being typed into.
  void refresh(int32_t except = 0);
  void captureKeyFor(int32_t id);

  HINSTANCE instance_;
  int32_t dialogId_;
  int32_t kind_;
  const OptionPageEntry& entry_;
  PageBehaviour behaviour_;
  std::unique_ptr<OptionPage> presenter_;
  HWND dialog_ = nullptr;
  bool refreshing_ = false;
};
