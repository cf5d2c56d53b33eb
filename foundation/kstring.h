// String: the owning byte string of every record, with a 16-bit length and a binary file form.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/basic.h"

// The text lives in a malloc block that is never null and always zero-terminated.
// Texts longer than 65535 bytes are outside the design: they are cut at 65535.
class String : public Basic {
 public:
  static constexpr uint16_t kMaxLength = 65535;

  String();
  String(const char* text);  // NOLINT: strings convert from text on purpose
  String(const std::string& text);  // NOLINT
  String(long int number);  // NOLINT: formatted as decimal
  String(int number);  // NOLINT: same as long, avoids ambiguity with literals
  String(const String& other);
  String(String&& other) noexcept;
  ~String() override;

  String& operator=(const char* text);
  String& operator=(const std::string& text);
  String& operator=(long int number);
  String& operator=(int number);
  String& operator=(const String& other);
  String& operator=(String&& other) noexcept;

  // Appending an empty text changes nothing and allocates nothing.
  String& operator+=(const char* text);
  String& operator+=(const String& other);
  String& operator+=(long int number);
  String& operator+=(int number);

  // The text itself; callers may write through it within the length.
  operator char*() override;
  // The text parsed as a decimal number; 0 when it does not start with one.
  operator long int() override;

  // Address of character index, valid for 0..length (length addresses the
  // terminator). Any other index shows the "Erreur" box and returns a shared
  // empty string.
  char* at(long int index);

  const char* c_str() const { return text_; }
  uint16_t length() const { return length_; }
  bool empty() const { return length_ == 0; }
  std::string str() const { return std::string(text_, length_); }

  // File form: the length as an unsigned 16-bit integer, then the text and its zero.
  int fWrite(ByteStream& file) override;
  // Reading failure leaves the string as far as it got, still zero-terminated.
  int fRead(ByteStream& file) override;

 private:
  void assign(const char* text, size_t length);
  void append(const char* text, size_t length);

  char* text_;
  uint16_t length_;
};

bool operator==(const String& a, const String& b);
bool operator!=(const String& a, const String& b);
