// The mail options page's list operations.
#include "delivery/mail_page.h"

void MailPagePresenter::show(bool projectOpen) {
  projectOpen_ = projectOpen;
  controlChecked = mail_.control != 0;
  rows.clear();
  selected = -1;
  editText.clear();
  if (!projectOpen) return;
  rows = mail_.recipientTexts();
  if (!rows.empty()) selectAndShow(0);
}

void MailPagePresenter::setControl(bool checked) {
  controlChecked = checked;
  changed = true;
}

void MailPagePresenter::selectAndShow(int32_t row) {
  selected = row;
  editText = row >= 0 && row < static_cast<int32_t>(rows.size()) ? rows[static_cast<size_t>(row)] : std::string();
}

void MailPagePresenter::selectRow(int32_t row) {
  if (row >= 0 && row < static_cast<int32_t>(rows.size())) selectAndShow(row);
}

void MailPagePresenter::changeEditText(const std::string& text) {
  editText = text.substr(0, kMaxRecipientLength);
  if (selected >= 0 && selected < static_cast<int32_t>(rows.size())) rows[static_cast<size_t>(selected)] = editText;
  changed = true;
}

void MailPagePresenter::createEntry() {
  int32_t at = selected >= 0 ? selected + 1 : 0;
  rows.insert(rows.begin() + at, "new entry");
  selectAndShow(at);
  changed = true;
}

void MailPagePresenter::deleteEntry() {
  if (selected < 0 || selected >= static_cast<int32_t>(rows.size())) return;
  rows.erase(rows.begin() + selected);
  int32_t count = static_cast<int32_t>(rows.size());
  if (count == 0) {
    selected = -1;
    editText.clear();
  } else {
    selectAndShow(selected < count ? selected : count - 1);
  }
  changed = true;
}

void MailPagePresenter::copyAll() {
  mail_.copiedRecipients.clear();
  for (const std::string& row : rows) mail_.copiedRecipients.append(new String(row));
  changed = true;
}

void MailPagePresenter::paste() {
  int32_t copied = mail_.copiedRecipients.count();
  if (copied == 0) return;
  int32_t at = selected >= 0 ? selected + 1 : 0;
  for (int32_t i = 0; i < copied; ++i) rows.insert(rows.begin() + at + i, mail_.copiedRecipients[i]->str());
  selectAndShow(at + copied - 1);
  changed = true;
}

void MailPagePresenter::accept() {
  mail_.control = controlChecked ? 1 : 0;
  mail_.setRecipients(rows);
}
