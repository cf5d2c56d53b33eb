// The General page's controls and storing.
#include "project/general_page.h"

std::vector<PageControl> GeneralPage::controls() {
  return {
      checkControl(1010, "Clear message window when a make starts", &fields_.clearOnMake),
      checkControl(1011, "Close message window during a make", &fields_.closeOnMake),
      checkControl(1012, "Close project window during a make", &fields_.closeProjectOnMake),
      checkControl(1013, "Iconize compile status box during a make", &fields_.iconizeStatusOnMake),
      checkControl(1014, "Open project window when opening project", &fields_.viewOnOpen),
      checkControl(1015, "Save modified buffers periodically", &fields_.timerSave),
      numberControl(1016, "Set auto-save period in minutes", &fields_.timerCount),
      checkControl(1017, "Allow only one running IDE", &fields_.unic),
  };
}

void GeneralPage::store() {
  options_ = fields_;
  options_.write();
}
