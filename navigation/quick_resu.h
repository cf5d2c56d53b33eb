// One hit of a search that collects several: a method definition or a reference.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/kstring.h"

// File form: the line as signed 32-bit, then the file and the text as strings.
class QuickResu : public Basic {
 public:
  QuickResu() = default;
  QuickResu(int32_t line, const std::string& file, const std::string& text) : line_(line), file_(file), text_(text) {}

  int32_t line() const { return line_; }
  std::string file() const { return file_.str(); }
  // What the results menu shows: "Class::Name" for a method, the whole line for a reference.
  std::string text() const { return text_.str(); }

  int fWrite(ByteStream& file) override;
  int fRead(ByteStream& file) override;
  operator char*() override { return static_cast<char*>(text_); }

 private:
  int32_t line_ = 0;
  String file_;
  String text_;
};
