// The comparison rules, in the order in which they override each other.
#include "groupware/gw_rules.h"

namespace {

template <int32_t N>
const char* wordOf(const char* const (&words)[N], int32_t value) {
  return value >= 0 && value < N ? words[value] : "";
}

const char* const kAgeWords[] = {"Same", "NEW!", "Newer", "Older", "Conflict"};
const char* const kSendRequestWords[] = {" ", "Update", "Send", "CONFLICT"};
const char* const kAdviceWords[] = {" ", "Refresh", "ERROR"};
const char* const kGetRequestWords[] = {" ", "Refresh", "Get"};

// The age of `other` seen from `self`, which exists.
int32_t ageAgainst(const GwCopy& self, const GwCopy& other) {
  if (!other.exists) return kAgeNew;
  if (other.time == self.time) return kAgeSame;
  return other.time > self.time ? kAgeNewer : kAgeOlder;
}

}  // namespace

const char* ageWord(int32_t age) { return wordOf(kAgeWords, age); }
const char* sendRequestWord(int32_t request) { return wordOf(kSendRequestWords, request); }
const char* adviceWord(int32_t advice) { return wordOf(kAdviceWords, advice); }
const char* getRequestWord(int32_t request) { return wordOf(kGetRequestWords, request); }

GwSendState sendState(const GwCopy& local, const GwCopy& server) {
  GwSendState state{ageAgainst(local, server), kSendNothing};
  // Both copies writable: the file was edited here without holding the lock.
  if (server.exists && server.writable && local.writable) state.request = kSendConflict;
  return state;
}

GwGetState getState(const GwCopy& server, const GwCopy& local) {
  // The age reads from the server's side: "Newer" when the server copy is the newer one.
  GwGetState state{kAgeSame, kAdviceNothing};
  if (!local.exists) {
    state.age = kAgeNew;
    state.advice = kAdviceRefresh;
    return state;
  }
  if (server.time > local.time) {
    state.age = kAgeNewer;
    state.advice = kAdviceRefresh;
  } else if (server.time < local.time) {
    state.age = kAgeOlder;
    bool heldAndEdited = !server.writable && local.writable;
    if (!heldAndEdited) state.advice = kAdviceError;
  }
  // Local edits without the lock, whatever the times say.
  if (server.writable && local.writable) state.advice = kAdviceError;
  return state;
}
