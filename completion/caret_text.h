// The text logic of the editor around the caret: which word is at or before
// it, and which file an editor name stands for. Columns are 1-based.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Letters "a"-"z", "A"-"Z", digits and "_"; every other byte separates words.
bool isWordCharacter(char c);

// The run of word characters that ends just before the caret; empty at column 1
// or when the caret is past the end of the line.
std::string_view wordBeforeCaret(std::string_view line, int32_t column);

// The word the caret touches: word characters to its left and from it on to
// the right, at most 255 of them from the word's start; empty when the caret is
// not inside the line.
std::string wordAtCursor(std::string_view line, int32_t column);

// An editor's file name without a trailing ":LINE" or ":LINE:COL": cut at the
// first ":" from the third character on, so that a drive letter's colon stays.
std::string editorFileName(const std::string& name);

// A description shown as a format text with no arguments: "%%" reads as "%";
// any other conversion has no argument to show and stays as it is written.
std::string formatWithoutArguments(std::string_view format);
