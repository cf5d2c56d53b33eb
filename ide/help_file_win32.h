// The add-on's help file: the DLL's own path with the extension "hlp".
#pragma once

#include <windows.h>

#include <cstdint>

class HelpFile {
 public:
  static constexpr DWORD kPathBytes = 299;

  // Checks the module's path; one without a three-letter extension ends the
  // whole process after the "Fatal" box, since the add-on cannot work without help.
  HelpFile(HINSTANCE instance, HWND owner);
  // Closes the help viewer when a topic was shown.
  ~HelpFile();
  HelpFile(const HelpFile&) = delete;
  HelpFile& operator=(const HelpFile&) = delete;

  void showTopic(uint32_t contextId);
  // The file's contents page: the bar's "Help...".
  void showContents();
  const char* path() const { return path_; }

 private:
  int32_t opened_ = 0;
  HINSTANCE instance_;
  HWND owner_;
  char path_[kPathBytes] = {};
};
