// The mail page's bindings over the mail page presenter.
#include "delivery/mail_option_page.h"

std::vector<PageControl> MailOptionPage::controls() {
  return {
      checkControl(1010, "Prompt mail dialog before sending mail", &presenter_.controlChecked),
      listControl(1011, "Select a recipient", &presenter_.rows, &presenter_.selected),
      textControl(1012, "Set recipient adress", &presenter_.editText, MailPagePresenter::kMaxRecipientLength),
      buttonControl(1013, "Create a new entry"),
      buttonControl(1014, "Delete a recipient"),
      buttonControl(1015, "Copy the recipient list"),
      buttonControl(1016, "Paste the copied recipients"),
  };
}

void MailOptionPage::changed(int32_t id) {
  switch (id) {
    case 1010: presenter_.setControl(presenter_.controlChecked); break;
    case 1011: presenter_.selectRow(presenter_.selected); break;
    case 1012: presenter_.changeEditText(presenter_.editText); break;
    case 1013: presenter_.createEntry(); break;
    case 1014: presenter_.deleteEntry(); break;
    case 1015: presenter_.copyAll(); break;
    case 1016: presenter_.paste(); break;
    default: break;
  }
  modified = modified || presenter_.changed;
}

bool MailOptionPage::enabled(int32_t id) const {
  if (id >= 1011 && id <= 1015) return presenter_.listEnabled();
  if (id == 1016) return presenter_.pasteEnabled();
  return true;
}

void MailOptionPage::store() {
  presenter_.accept();
  mail_.saveSettings();
}
