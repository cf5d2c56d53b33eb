// The mail options page as a presenter: the recipient rows, the selection, the
// edit field and the copy/paste of whole lists. The dialog only moves values.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "delivery/mail.h"

class MailPagePresenter {
 public:
  static constexpr size_t kMaxRecipientLength = 299;

  explicit MailPagePresenter(Mail& mail) : mail_(mail) {}

  // Fills the page from the mail object; without a project the list stays empty.
  void show(bool projectOpen);

  // What the controls show.
  bool controlChecked = false;      // 1010
  std::vector<std::string> rows;    // 1011
  int32_t selected = -1;            // 1011's selection, -1 for none
  std::string editText;             // 1012
  bool changed = false;             // the page's changed mark
  bool listEnabled() const { return projectOpen_; }  // 1011 to 1015
  bool pasteEnabled() const { return projectOpen_ && mail_.copiedRecipients.count() > 0; }  // 1016

  void setControl(bool checked);
  void selectRow(int32_t row);
  // Every change of 1012 replaces the selected row; the text is cut at 299 characters.
  void changeEditText(const std::string& text);
  void createEntry();  // 1013
  void deleteEntry();  // 1014
  void copyAll();      // 1015
  void paste();        // 1016

  // Control and the recipients take the page's values; the host's project
  // session writes the recipients into the project when it saves.
  void accept();

 private:
  void selectAndShow(int32_t row);

  Mail& mail_;
  bool projectOpen_ = false;
};
