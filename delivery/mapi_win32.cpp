// Sending one message through Simple MAPI.
#include "delivery/mapi_win32.h"

#include <mapi.h>

#include <vector>

namespace {

// The mail system's library, freed when the sending ends.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(const char* name) : module_(LoadLibraryA(name)) {}
  ~LoadedLibrary() {
    if (module_) FreeLibrary(module_);
  }
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  HMODULE get() const { return module_; }

 private:
  HMODULE module_;
};

}  // namespace

MailResult sendMapiMail(HWND owner, const MailMessage& message, std::string* err) {
  LoadedLibrary mapi("MAPI32.DLL");
  if (!mapi.get()) {
    if (err) *err = "LoadLibraryA MAPI32.DLL: error " + std::to_string(GetLastError());
    return MailResult::TransportMissing;
  }
  auto sendMail = reinterpret_cast<LPMAPISENDMAIL>(reinterpret_cast<void*>(GetProcAddress(mapi.get(), "MAPISendMail")));
  if (!sendMail) {
    if (err) *err = "GetProcAddress MAPISendMail: error " + std::to_string(GetLastError());
    return MailResult::TransportUnavailable;
  }
  // MAPI takes writable texts; these copies live until the call returns.
  std::string subject = message.subject;
  std::string note = message.note;
  std::vector<std::string> names = message.recipients;
  std::vector<MapiRecipDesc> recipients(names.size());
  for (size_t i = 0; i < names.size(); ++i) {
    recipients[i] = MapiRecipDesc{};
    recipients[i].ulRecipClass = MAPI_TO;
    recipients[i].lpszName = &names[i][0];
  }
  MapiMessage mapiMessage = {};
  mapiMessage.lpszSubject = &subject[0];
  mapiMessage.lpszNoteText = &note[0];
  mapiMessage.nRecipCount = static_cast<ULONG>(recipients.size());
  mapiMessage.lpRecips = recipients.empty() ? nullptr : recipients.data();
  // The mail system may need to ask which profile to use.
  const FLAGS flags = MAPI_LOGON_UI | (message.showDialog ? MAPI_DIALOG : 0);
  const ULONG result = sendMail(0, reinterpret_cast<ULONG_PTR>(owner), &mapiMessage, flags, 0);
  if (result == SUCCESS_SUCCESS) return MailResult::Sent;
  if (err) *err = "MAPISendMail: error " + std::to_string(result);
  return MailResult::Failed;
}
