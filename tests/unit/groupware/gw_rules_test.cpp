// The age, request and advice rules of both sides.
#include <gtest/gtest.h>

#include "groupware/gw_rules.h"

namespace {

GwCopy copy(int64_t time, bool writable) { return GwCopy{true, time, writable, 0}; }
const GwCopy kAbsent;

TEST(GwSendRules, AgeIsTheServerCopySeenFromTheLocalOne) {
  EXPECT_EQ(sendState(copy(10, true), kAbsent).age, kAgeNew);
  EXPECT_EQ(sendState(copy(10, true), copy(10, false)).age, kAgeSame);
  EXPECT_EQ(sendState(copy(10, true), copy(11, false)).age, kAgeNewer);
  EXPECT_EQ(sendState(copy(10, true), copy(9, false)).age, kAgeOlder);
}

TEST(GwSendRules, ConflictOnlyWhenBothCopiesAreWritable) {
  EXPECT_EQ(sendState(copy(10, true), copy(10, true)).request, kSendConflict);
  EXPECT_EQ(sendState(copy(10, true), copy(10, false)).request, kSendNothing);
  EXPECT_EQ(sendState(copy(10, true), kAbsent).request, kSendNothing);
}

TEST(GwGetRules, AdviceFollowsTheRulesInOrder) {
  struct Case {
    GwCopy server, local;
    int32_t age, advice;
  } cases[] = {
      {copy(10, true), kAbsent, kAgeNew, kAdviceRefresh},
      {copy(11, false), copy(10, false), kAgeNewer, kAdviceRefresh},
      {copy(9, false), copy(10, false), kAgeOlder, kAdviceError},
      // The user holds the lock and has edited the file: not an error.
      {copy(9, false), copy(10, true), kAgeOlder, kAdviceNothing},
      {copy(10, false), copy(10, true), kAgeSame, kAdviceNothing},
      {copy(10, true), copy(10, false), kAgeSame, kAdviceNothing},
      // Edited without the lock, even when the server copy is newer.
      {copy(11, true), copy(10, true), kAgeNewer, kAdviceError},
      {copy(10, true), copy(10, true), kAgeSame, kAdviceError},
  };
  for (const Case& c : cases) {
    GwGetState state = getState(c.server, c.local);
    EXPECT_EQ(state.age, c.age);
    EXPECT_EQ(state.advice, c.advice);
  }
}

}  // namespace
