// The identifier ranges of the numbered popup items that the bar window hands
// to one feature each: the bar's dispatch table and the popups that number
// their items both read them from here.
#pragma once

#include <cstdint>

struct CommandRange {
  uint32_t first;
  uint32_t last;

  // How many items the range can number; a popup with more entries stops there.
  constexpr int32_t size() const { return static_cast<int32_t>(last - first + 1); }
  constexpr uint32_t id(int32_t index) const { return first + static_cast<uint32_t>(index); }
};

constexpr CommandRange kToolCommands{300, 399};
constexpr CommandRange kIncludeCommands{700, 799};
constexpr CommandRange kQuickFindResultCommands{800, 899};
constexpr CommandRange kFunctionCommands{1000, 9999};
