// The functions scan: every function and method defined in column one of a source text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/tableau.h"

// One function or method found: its name, its class (empty for a free
// function) and the 1-based line of its definition. Names are kept exactly as
// found, a trailing blank included.
class Fnc : public Basic {
 public:
  Fnc() = default;
  Fnc(std::string name, std::string className, int32_t line)
      : name_(std::move(name)), className_(std::move(className)), line_(line) {}

  const std::string& name() const { return name_; }
  const std::string& className() const { return className_; }
  int32_t line() const { return line_; }
  bool isMethod() const { return !className_.empty(); }

 private:
  std::string name_;
  std::string className_;
  int32_t line_ = 0;
};

// The entry that one line gives; false when the line is not a definition.
// A definition starts in column one, has no ';' anywhere and a '(' after its
// first character; the text before the first '(' holds the class and the name.
bool functionOnLine(std::string_view line, std::string* name, std::string* className);

// Appends the entries of text to list in file order.
void scanFunctions(std::string_view text, Tableau<Fnc>* list);

// By class, then by name, both in unsigned byte order: free functions first.
void sortFunctions(Tableau<Fnc>* list);
