// The mail page of the options chapter: the mail page presenter's fields and
// commands bound to the dialog's controls 1010 to 1016.
#pragma once

#include "delivery/mail_page.h"
#include "project/option_page.h"

class MailOptionPage : public OptionPage {
 public:
  // projectOpen tells, each time the page is shown, whether a project is open.
  MailOptionPage(Mail& mail, bool (*projectOpen)()) : mail_(mail), presenter_(mail), projectOpen_(projectOpen) {}

  std::vector<PageControl> controls() override;
  void show() override { presenter_.show(projectOpen_()); }
  void changed(int32_t id) override;
  bool enabled(int32_t id) const override;
  // Control and the recipients take the page's values and "Control" is written;
  // the project's options are the host's to save.
  void store() override;

 private:
  Mail& mail_;
  MailPagePresenter presenter_;
  bool (*projectOpen_)();
};
