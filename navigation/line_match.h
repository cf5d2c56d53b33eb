// The line filters of the searches: where a line defines a function, a method
// or a class of a given name, or refers to it from inside a body. Only the
// first occurrence of the name in a line is ever tried.
#pragma once

#include <string>
#include <string_view>

// 'a'-'z', 'A'-'Z', '0'-'9' and '_'; every other byte and the line's end separate.
bool isIdentifierChar(char c);

// A column-one line without ';' where the name stands alone before the first '('.
bool matchesFunctionLine(std::string_view line, std::string_view name);

// As a function, with a "::" before the name; text gets "Class::Name".
bool matchesMethodLine(std::string_view line, std::string_view name, std::string* text);

// A "class" line (case-sensitive keyword) where the name stands alone.
bool matchesClassLine(std::string_view line, std::string_view name);

// An indented line where the name stands alone: a use inside a body.
bool matchesReferenceLine(std::string_view line, std::string_view name);
