// String storage, conversions and file form.
#include "foundation/kstring.h"

#include <cstdlib>
#include <cstring>

#include "foundation/alert.h"
#include "foundation/binary_io.h"

namespace {

char sharedEmpty[1] = {0};

size_t clampLength(size_t length) { return length > String::kMaxLength ? String::kMaxLength : length; }

std::string decimal(long int number) { return std::to_string(number); }

}  // namespace

String::String() : text_(static_cast<char*>(std::malloc(1))), length_(0) { text_[0] = 0; }

String::String(const char* text) : String() { assign(text ? text : "", text ? std::strlen(text) : 0); }

String::String(const std::string& text) : String() { assign(text.data(), text.size()); }

String::String(long int number) : String() { *this = number; }

String::String(int number) : String(static_cast<long int>(number)) {}

String::String(const String& other) : String() { assign(other.text_, other.length_); }

String::String(String&& other) noexcept : text_(other.text_), length_(other.length_) {
  other.text_ = static_cast<char*>(std::malloc(1));
  other.text_[0] = 0;
  other.length_ = 0;
}

String::~String() { std::free(text_); }

String& String::operator=(const char* text) {
  assign(text ? text : "", text ? std::strlen(text) : 0);
  return *this;
}

String& String::operator=(const std::string& text) {
  assign(text.data(), text.size());
  return *this;
}

String& String::operator=(long int number) {
  std::string text = decimal(number);
  assign(text.data(), text.size());
  return *this;
}

String& String::operator=(int number) { return *this = static_cast<long int>(number); }

String& String::operator=(const String& other) {
  if (this != &other) assign(other.text_, other.length_);
  return *this;
}

String& String::operator=(String&& other) noexcept {
  if (this != &other) {
    std::free(text_);
    text_ = other.text_;
    length_ = other.length_;
    other.text_ = static_cast<char*>(std::malloc(1));
    other.text_[0] = 0;
    other.length_ = 0;
  }
  return *this;
}

String& String::operator+=(const char* text) {
  if (text) append(text, std::strlen(text));
  return *this;
}

String& String::operator+=(const String& other) {
  // Copy first: other may be this string.
  std::string copy(other.text_, other.length_);
  append(copy.data(), copy.size());
  return *this;
}

String& String::operator+=(long int number) {
  std::string text = decimal(number);
  append(text.data(), text.size());
  return *this;
}

String& String::operator+=(int number) { return *this += static_cast<long int>(number); }

String::operator char*() { return text_; }

String::operator long int() { return std::strtol(text_, nullptr, 10); }

char* String::at(long int index) {
  if (index < 0 || index > static_cast<long int>(length_)) {
    alert("Parcours de chaine hors limite !", "Erreur", kAlertOk);
    sharedEmpty[0] = 0;  // a caller may have written through it
    return sharedEmpty;
  }
  return text_ + index;
}

int String::fWrite(ByteStream& file) {
  if (!writeU16(file, length_)) return 0;
  file.write(text_, length_ + 1u);
  return 1;
}

int String::fRead(ByteStream& file) {
  uint16_t length = 0;
  if (!readU16(file, &length)) return 0;
  char* block = static_cast<char*>(std::realloc(text_, length + 1u));
  if (!block) return 0;
  text_ = block;
  size_t got = file.readSome(text_, length + 1u);
  // Whatever arrived, the string stays terminated within its block.
  length_ = static_cast<uint16_t>(got < length ? got : length);
  text_[length_] = 0;
  return got == length + 1u ? 1 : 0;
}

void String::assign(const char* text, size_t length) {
  length = clampLength(length);
  // The source may lie inside this block: copy before resizing.
  std::string copy(text, length);
  char* block = static_cast<char*>(std::realloc(text_, length + 1));
  if (!block) return;
  text_ = block;
  std::memcpy(text_, copy.data(), length);
  text_[length] = 0;
  length_ = static_cast<uint16_t>(length);
}

void String::append(const char* text, size_t length) {
  if (length == 0) return;
  size_t total = clampLength(length_ + length);
  if (total == length_) return;
  std::string copy(text, total - length_);
  char* block = static_cast<char*>(std::realloc(text_, total + 1));
  if (!block) return;
  text_ = block;
  std::memcpy(text_ + length_, copy.data(), copy.size());
  text_[total] = 0;
  length_ = static_cast<uint16_t>(total);
}

bool operator==(const String& a, const String& b) {
  return a.length() == b.length() && std::memcmp(a.c_str(), b.c_str(), a.length()) == 0;
}

bool operator!=(const String& a, const String& b) { return !(a == b); }
