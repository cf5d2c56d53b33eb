// The commands that manage the keyword file list: add, extract and add, remove.
// Each one reloads the engine's keywords when the list changed; writing the
// settings back is the caller's.
#pragma once

#include <cstddef>
#include <string>

class CompletionEngine;

// Appends path to the list.
void addKeywordFile(CompletionEngine& engine, const std::string& path);

// Extracts the keywords of a source into the keyword file beside it and appends
// that file. On failure shows "Impossible to extract keywords" (caption
// "Warning"), leaves the list as it was and gives the reason in *err.
bool extractAndAddKeywordFile(CompletionEngine& engine, const std::string& sourcePath, std::string* keywordPath,
                              std::string* err);

// Asks "Ok to remove this file ?" and removes the entry at index on Yes.
// False when the answer is No or index is outside the list.
bool removeKeywordFile(CompletionEngine& engine, size_t index);
