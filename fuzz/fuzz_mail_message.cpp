// Composes Internet messages from fuzzed senders, recipients, subjects and
// notes: whatever they hold, the header stays the composer's own lines, so no
// text can inject a header of its own.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "cli/sendmail_transport.h"

namespace {

bool isOwnHeaderLine(const std::string& line) {
  static const char* const kHeaders[] = {"From: ", "To: ", "Subject: ", "Date: ", "MIME-Version: ",
                                         "Content-Type: ", "Content-Transfer-Encoding: ", " "};
  for (const char* header : kHeaders)
    if (line.compare(0, std::string(header).size(), header) == 0) return true;
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  MailMessage message;
  std::string from = input.ConsumeRandomLengthString(256);
  message.subject = input.ConsumeRandomLengthString(512);
  for (int count = input.ConsumeIntegralInRange(0, 4); count > 0; --count)
    message.recipients.push_back(input.ConsumeRandomLengthString(128));
  message.note = input.ConsumeRemainingBytesAsString();
  std::string text = composeInternetMessage(message, from, 0);

  size_t headerEnd = text.find("\r\n\r\n");
  if (headerEnd == std::string::npos) __builtin_trap();
  int subjects = 0;
  for (size_t start = 0; start <= headerEnd;) {
    size_t end = text.find("\r\n", start);
    std::string line = text.substr(start, end - start);
    if (!isOwnHeaderLine(line) || line.find_first_of("\r\n") != std::string::npos) __builtin_trap();
    subjects += line.compare(0, 9, "Subject: ") == 0;
    start = end + 2;
  }
  if (subjects != 1) __builtin_trap();
  return 0;
}
