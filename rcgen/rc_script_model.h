// The records a resource script is read into: fixed-width text fields and
// tables of at most 255 entries, so that no script can make them grow or overflow.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

// Text of at most N-1 bytes, always zero-terminated. Longer text is cut at the
// width; text is also cut at an embedded zero byte, as a C string would be.
template <size_t N>
class FixedText {
 public:
  FixedText() { text_[0] = '\0'; }
  explicit FixedText(const std::string& text) { assign(text); }

  void assign(const std::string& text) {
    size_t length = 0;
    while (length < N - 1 && length < text.size() && text[length] != '\0') ++length;
    std::memcpy(text_, text.data(), length);
    text_[length] = '\0';
  }
  void clear() { text_[0] = '\0'; }

  const char* c_str() const { return text_; }
  std::string str() const { return text_; }
  bool empty() const { return text_[0] == '\0'; }
  bool operator==(const std::string& other) const { return other == text_; }
  bool operator==(const FixedText& other) const { return std::strcmp(text_, other.text_) == 0; }
  bool operator!=(const FixedText& other) const { return !(*this == other); }

 private:
  char text_[N];
};

// Every table of one reading holds at most this many entries; later ones are dropped.
constexpr size_t kRcTableCapacity = 255;

struct RcDefine {
  FixedText<70> name;   // as written after #define
  FixedText<50> value;  // the next token, kept as text ("101")
};

struct RcMenuItem {
  FixedText<50> member;  // derived from the item's identifier
  FixedText<50> menu;    // the menu resource holding the item
  FixedText<50> code;    // the value text of the item's identifier
};

struct RcControl {
  FixedText<80> member;
  FixedText<40> id;         // "IDOK", "IDCANCEL", "IDHELP" or the identifier's value text
  FixedText<40> className;  // framework class; never empty for a control in a table
};

struct RcDialog {
  FixedText<80> name;
  FixedText<50> menu;  // from the dialog's MENU statement; empty when none
  std::vector<RcControl> controls;
};

// Appends to a table unless it is full. Returns false when the entry was dropped.
template <typename T>
bool addWithinCapacity(std::vector<T>* table, const T& entry) {
  if (table->size() >= kRcTableCapacity) return false;
  table->push_back(entry);
  return true;
}

// The two texts of one generation unit, as they grow script by script.
struct RcUnitText {
  std::string header;
  std::string implementation;
};
