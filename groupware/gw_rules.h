// How a local copy and its server copy compare, and what each side may request:
// the ages, requests and advice of the send and get lists, with their words.
#pragma once

#include <cstdint>

// Ages. "Conflict" has a word but no rule produces it.
enum GwAge : int32_t { kAgeSame = 0, kAgeNew = 1, kAgeNewer = 2, kAgeOlder = 3, kAgeConflict = 4 };
enum GwSendRequest : int32_t { kSendNothing = 0, kSendUpdate = 1, kSendSend = 2, kSendConflict = 3 };
enum GwAdvice : int32_t { kAdviceNothing = 0, kAdviceRefresh = 1, kAdviceError = 2 };
enum GwGetRequest : int32_t { kGetNothing = 0, kGetRefresh = 1, kGetGet = 2 };

// The words of the rows; a value out of range gives "".
const char* ageWord(int32_t age);
const char* sendRequestWord(int32_t request);
const char* adviceWord(int32_t advice);
const char* getRequestWord(int32_t request);
inline const char* lockedWord(bool locked) { return locked ? "Yes" : "No"; }

// One side of the comparison: whether the copy exists, its last-write time in
// whole seconds, whether it is writable, and its size.
struct GwCopy {
  bool exists = false;
  int64_t time = 0;
  bool writable = false;
  uint64_t size = 0;
};

// Send side, seen from a writable local file.
struct GwSendState {
  int32_t age;
  int32_t request;
};
GwSendState sendState(const GwCopy& local, const GwCopy& server);

// Get side, seen from an existing server file.
struct GwGetState {
  int32_t age;
  int32_t advice;
};
GwGetState getState(const GwCopy& server, const GwCopy& local);
