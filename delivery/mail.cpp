// Mail sending through the host's transport.
#include "delivery/mail.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "foundation/settings.h"

namespace {

std::vector<std::string> texts(const Ensemble<String>& list) {
  std::vector<std::string> out;
  for (int32_t i = 0; i < list.count(); ++i) out.push_back(list[i]->str());
  return out;
}

}  // namespace

void Mail::loadSettings() { control = settings().readInteger("Mail", "Control", 0); }

void Mail::saveSettings() { settings().writeInteger("Mail", "Control", control); }

std::vector<std::string> Mail::recipientTexts() const { return texts(recipients); }

void Mail::setRecipients(const std::vector<std::string>& list) {
  recipients.clear();
  for (const std::string& text : list) recipients.append(new String(text));
}

std::string buildMailNote(const std::string& body, const std::string& includeFile) {
  std::string note = body;
  std::string included;
  if (includeFile.empty() || !os().readTextFile(includeFile, &included, nullptr)) return note;
  note += included;
  note += std::string(70, '-') + "\n";
  note += "That's all folks !\n";
  return note;
}

int Mail::send(Host& host, const std::string& subject, const std::string& body, const std::string& includeFile) {
  // Held from the read of the included notes to their removal, so that a note
  // another process adds meanwhile waits and is kept. Without the lock the
  // notes are mailed but kept: twice is better than never.
  std::unique_ptr<OsLock> includeLock = includeFile.empty() ? nullptr : os().lock(includeFile, nullptr);
  MailMessage message;
  message.subject = subject;
  message.note = buildMailNote(body, includeFile);
  message.recipients = recipientTexts();
  message.showDialog = control != 0;
  std::string err;
  switch (host.sendMail(message, &err)) {
    case MailResult::Sent:
      // The included notifications are consumed by the sending.
      if (includeLock) os().removeFile(includeFile, nullptr);
      return 1;
    case MailResult::TransportMissing:
      alert("MAPI not present !", "Kesto AddOn error", kAlertIconHand);
      break;
    case MailResult::TransportUnavailable:
      alert("MAPI not available !", "Kesto AddOn error", kAlertIconHand);
      break;
    case MailResult::Failed:
      break;
  }
  if (!err.empty()) host.showStatus(err);
  return 0;
}

