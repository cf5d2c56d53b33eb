// The help file's check at start, its topics, and the viewer's closing.
#include "ide/help_file_win32.h"

#include <string>

#include "foundation/alert.h"
#include "project/addon_startup.h"

HelpFile::HelpFile(HINSTANCE instance, HWND owner) : instance_(instance), owner_(owner) {
  GetModuleFileNameA(instance_, path_, kPathBytes);
  path_[kPathBytes - 1] = 0;
  std::string helpPath;
  if (!helpPathFor(path_, &helpPath)) {
    alert("You can't use Kesto AddOn for Borland C++ 5.0\nwithout its helpfile !", "Fatal", kAlertIconHand);
    ExitProcess(0);
  }
  // Same length as the module path, so it fits.
  helpPath.copy(path_, helpPath.size());
}

HelpFile::~HelpFile() {
  if (opened_) WinHelpA(owner_, path_, HELP_QUIT, 0);
}

void HelpFile::showTopic(uint32_t contextId) {
  opened_ = 1;
  WinHelpA(owner_, path_, HELP_CONTEXT, contextId);
}

void HelpFile::showContents() {
  opened_ = 1;
  // HELP_CONTENTS rather than the newer finder: every viewer of both looks has it.
  WinHelpA(owner_, path_, HELP_CONTENTS, 0);
}
