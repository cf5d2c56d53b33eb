// The Kesto Windows page's controls and storing.
#include "rcgen/kesto_windows_page.h"

std::vector<PageControl> KestoWindowsPage::controls() {
  return {
      checkControl(1010, "Enable/Disable Kesto Windows file generation", &windows_),
      checkControl(1011, "Enable/Disable version file generation", &version_),
  };
}

void KestoWindowsPage::show() {
  windows_ = project_ ? project_->generateWindows : 0;
  version_ = project_ ? project_->generateRc : 0;
}

void KestoWindowsPage::store() {
  if (!project_) return;
  project_->generateWindows = windows_;
  project_->generateRc = version_;
}
