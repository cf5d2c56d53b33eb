// A MAPI32.DLL of the tests' own: each message handed to MAPISendMail is
// appended to the file named by KESTO_TEST_MAPI_LOG, and the call answers
// KESTO_TEST_MAPI_RESULT (0, success, when unset).
#include <windows.h>

#include <mapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string environment(const char* name) {
  char value[MAX_PATH] = {};
  const DWORD length = GetEnvironmentVariableA(name, value, sizeof value);
  return length > 0 && length < sizeof value ? value : "";
}

}  // namespace

// One record per message: the header lines, then the note's bytes as they came, then a closing line.
extern "C" ULONG WINAPI MAPISendMail(LHANDLE, ULONG_PTR owner, lpMapiMessage message, FLAGS flags, ULONG) {
  const std::string log = environment("KESTO_TEST_MAPI_LOG");
  if (!log.empty()) {
    if (FILE* file = std::fopen(log.c_str(), "ab")) {
      std::fprintf(file, "subject: %s\nflags: %lu\nowner: %s\nto:", message->lpszSubject ? message->lpszSubject : "",
                   static_cast<unsigned long>(flags), owner ? "yes" : "no");
      for (ULONG i = 0; i < message->nRecipCount; ++i)
        std::fprintf(file, " [%lu %s]", static_cast<unsigned long>(message->lpRecips[i].ulRecipClass),
                     message->lpRecips[i].lpszName);
      std::fprintf(file, "\nnote:\n%s\n.end\n", message->lpszNoteText ? message->lpszNoteText : "");
      std::fclose(file);
    }
  }
  return static_cast<ULONG>(std::strtoul(environment("KESTO_TEST_MAPI_RESULT").c_str(), nullptr, 10));
}
