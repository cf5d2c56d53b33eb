// Text rules of the editor operations, apart from the editor itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// The longest word that the word-at-cursor operation gives.
constexpr size_t kMaxCursorWord = 255;

// Letters, digits and "_"; everything else separates words (completion shares this set).
bool isWordCharacter(char c);

// The word of line around the 1-based column: empty when the column is past
// the line's end, otherwise the word characters left of the column and from it
// on, cut at kMaxCursorWord from the word's start, blanks and control bytes
// trimmed from both ends.
std::string wordAtColumn(const std::string& line, int32_t column);
