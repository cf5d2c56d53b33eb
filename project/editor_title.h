// What the add-on reads from the titles of the IDE's windows: an editor's file
// name, the documentation title and the match of a file name against a title.
#pragma once

#include <string>

// The widths of the title buffers: the file name of a clicked editor, and the
// longest title copied for "Edit Documentation".
constexpr size_t kEditorFileNameLimit = 178;
constexpr size_t kDocumentationTitleLimit = 510;

// The file name in an editor's title: from the last character down to the
// third, every ':' and '*', and a blank that ends the text at that moment, end
// the text. The view number (":2") and the modified mark go; a drive letter's
// colon stays. The title is first cut to limit characters.
std::string editorFileName(const std::string& title, size_t limit = kEditorFileNameLimit);

// The title cut to kDocumentationTitleLimit, without its trailing blanks and '*'.
std::string documentationTitle(const std::string& title);

// Whether upperName (already upper case) names the window titled title: it
// must start the title or follow a '\' or '/', and be followed by the title's
// end or ':'. FILE.CPP names C:\SRC\FILE.CPP:2 but not MYFILE.CPP.
bool titleNamesFile(const std::string& title, const std::string& upperName);

// ASCII letters a to z in upper case, every other byte as it is.
std::string asciiUpper(std::string text);
