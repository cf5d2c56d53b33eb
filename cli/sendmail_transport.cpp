// Mail through a sendmail-compatible program.
#include "cli/sendmail_transport.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "foundation/settings.h"
#include "foundation/text_encoding.h"

namespace {

// What the body is written in on this system: the terminal's and the files' text.
constexpr const char* kCharset = "UTF-8";
// An encoded word may not pass 75 characters: 12 of them go to "=?UTF-8?B?" and
// "?=", which leaves 60 digits of base 64 for 45 bytes.
constexpr size_t kBytesPerEncodedWord = 45;

// A UTF-8 sequence's second, third or fourth byte.
bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::string base64(const std::string& bytes) {
  static const char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  for (size_t i = 0; i < bytes.size(); i += 3) {
    uint32_t group = static_cast<uint32_t>(static_cast<unsigned char>(bytes[i])) << 16;
    if (i + 1 < bytes.size()) group |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[i + 1])) << 8;
    if (i + 2 < bytes.size()) group |= static_cast<unsigned char>(bytes[i + 2]);
    out += kDigits[(group >> 18) & 63];
    out += kDigits[(group >> 12) & 63];
    out += i + 1 < bytes.size() ? kDigits[(group >> 6) & 63] : '=';
    out += i + 2 < bytes.size() ? kDigits[group & 63] : '=';
  }
  return out;
}

bool isPlainHeaderText(const std::string& text) {
  for (char c : text)
    if (static_cast<unsigned char>(c) > 126 || c == '\r' || c == '\n') return false;
  return true;
}

// Header text as it is, or as encoded words on folded lines when it is not plain ASCII.
std::string headerText(const std::string& text) {
  if (isPlainHeaderText(text)) return text;
  std::string out;
  for (size_t i = 0; i < text.size();) {
    // An encoded word holds whole characters only.
    size_t end = std::min(i + kBytesPerEncodedWord, text.size());
    while (end < text.size() && end > i + 1 && continuesCharacter(text[end])) --end;
    if (i) out += "\r\n ";
    out += std::string("=?") + kCharset + "?B?" + base64(text.substr(i, end - i)) + "?=";
    i = end;
  }
  return out;
}

// Lone line feeds become CR LF; CR LF pairs stay; the last line gets its end.
std::string crLfLines(const std::string& text) {
  std::string out = withCrLfLines(text);
  if (!out.empty() && out.back() != '\n') out += "\r\n";
  return out;
}

std::string internetDate(std::time_t when) {
  struct tm local;
  localtime_r(&when, &local);
  char text[64];
  size_t n = std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S %z", &local);
  return std::string(text, n);
}

bool writeAll(int fd, const std::string& data) {
  size_t done = 0;
  while (done < data.size()) {
    ssize_t n = ::write(fd, data.data() + done, data.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return true;
}

// Keeps a program that stops reading early from killing kesto with SIGPIPE.
class IgnoredBrokenPipe {
 public:
  IgnoredBrokenPipe() { ::sigaction(SIGPIPE, ignore(), &previous_); }
  ~IgnoredBrokenPipe() { ::sigaction(SIGPIPE, &previous_, nullptr); }
  IgnoredBrokenPipe(const IgnoredBrokenPipe&) = delete;
  IgnoredBrokenPipe& operator=(const IgnoredBrokenPipe&) = delete;

 private:
  static const struct sigaction* ignore() {
    static struct sigaction action = [] {
      struct sigaction a {};
      a.sa_handler = SIG_IGN;
      return a;
    }();
    return &action;
  }
  struct sigaction previous_ {};
};

bool isBareAddress(const std::string& text) {
  size_t at = text.rfind('@');
  if (at == std::string::npos || at == 0 || at + 1 == text.size()) return false;
  for (char c : text)
    if (static_cast<unsigned char>(c) <= ' ' || c == '<' || c == '>' || c == ',' || c == '"') return false;
  return true;
}

}  // namespace

bool isMailAddress(const std::string& recipient) {
  if (isBareAddress(recipient)) return true;
  // "Name <local@domain>"
  size_t open = recipient.rfind('<');
  return open != std::string::npos && recipient.size() > open + 2 && recipient.back() == '>' &&
         isBareAddress(recipient.substr(open + 1, recipient.size() - open - 2));
}

std::string sendmailCommand() {
  std::string command;
  settings().readString("Mail", "Sendmail", &command, kSendmailDefault);
  return command;
}

std::string composeInternetMessage(const MailMessage& message, const std::string& from, std::time_t when) {
  std::string text = "From: " + headerText(from) + "\r\n";
  if (!message.recipients.empty()) {
    text += "To: ";
    for (size_t i = 0; i < message.recipients.size(); ++i)
      text += (i ? ",\r\n " : "") + headerText(message.recipients[i]);
    text += "\r\n";
  }
  text += "Subject: " + headerText(message.subject) + "\r\n";
  text += "Date: " + internetDate(when) + "\r\n";
  text += "MIME-Version: 1.0\r\n";
  text += std::string("Content-Type: text/plain; charset=") + kCharset + "\r\n";
  text += "Content-Transfer-Encoding: 8bit\r\n";
  text += "\r\n";
  return text + crLfLines(message.note);
}

MailResult runSendmail(const std::string& command, const std::string& message, std::string* err) {
  int input[2];
  if (::pipe(input) != 0) {
    if (err) *err = "cannot run " + command + ": no pipe";
    return MailResult::Failed;
  }
  IgnoredBrokenPipe guard;
  pid_t child = ::fork();
  if (child < 0) {
    ::close(input[0]);
    ::close(input[1]);
    if (err) *err = "cannot run " + command + ": fork failed";
    return MailResult::Failed;
  }
  if (child == 0) {
    ::dup2(input[0], STDIN_FILENO);
    ::close(input[0]);
    ::close(input[1]);
    ::execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
    ::_exit(127);
  }
  ::close(input[0]);
  bool written = writeAll(input[1], message);
  ::close(input[1]);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0 && written) return MailResult::Sent;
  if (WIFEXITED(status) && WEXITSTATUS(status) == 127) {
    if (err) *err = command + ": program not found";
    return MailResult::TransportMissing;
  }
  if (err) {
    if (WIFSIGNALED(status))
      *err = command + " ended on signal " + std::to_string(WTERMSIG(status));
    else if (WEXITSTATUS(status) != 0)
      *err = command + " exited with status " + std::to_string(WEXITSTATUS(status));
    else
      *err = command + " did not take the whole message";
  }
  return MailResult::Failed;
}
