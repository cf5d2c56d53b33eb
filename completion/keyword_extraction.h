// Making a keyword file from a C/C++ source: the names of the functions and
// classes defined at column 0.
#pragma once

#include <string>
#include <string_view>

// The source's path with the text after the last "." of its file name replaced
// by "kwd"; false when the file name holds no ".".
bool keywordFilePathFor(const std::string& sourcePath, std::string* keywordPath);

// The keyword file's text for a source's text: one name a line, a class name
// written before its methods each time the class changes.
std::string extractKeywords(std::string_view sourceText);

// Reads the source, writes its keyword file beside it and gives that file's path.
// False with the reason in *err when the source has no extension, cannot be
// read, or the keyword file cannot be written (nothing half-written is left).
bool extractKeywordFile(const std::string& sourcePath, std::string* keywordPath, std::string* err);
