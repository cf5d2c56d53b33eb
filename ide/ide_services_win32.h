// What the features ask of the IDE's editor, status line and project options.
#pragma once

#include <string>

#include "foundation/kstring.h"
#include "win32/ide_api_win32.h"

// Shows text on the IDE's status line; nothing when the service is absent.
void showStatusText(const char* text);

// One editor operation on the open view of a file: the transaction opens with
// the session (the view's buffer made current) and closes with it. Every call
// does nothing when there is no such view.
class EditorSession {
 public:
  explicit EditorSession(const std::string& file);
  ~EditorSession();
  EditorSession(const EditorSession&) = delete;
  EditorSession& operator=(const EditorSession&) = delete;

  bool open() const { return view_ != 0; }
  // 1-based; 0 and 0 without a view.
  void cursor(long* column, long* line) const;
  void moveCursor(long column, long line);
  void scrollToLine(long line);
  // The text of a line without its line end; empty past the end.
  std::string line(long number) const;
  // Inserts at the cursor and moves the cursor past the text when asked.
  void insert(const std::string& text, bool moveCursorPast);
  // The whole buffer; false without a view.
  bool text(std::string* text) const;

 private:
  IIdeEditor* editor_;
  IdeHandle view_ = 0;
};

// Puts the file's editor on column 1 of line and brings the line after it into view.
void goToLine(const std::string& file, long line);
// The word under the cursor of the file's editor into word (at least 256 bytes,
// empty when none); the cursor stays where it was.
void wordAtCursor(const std::string& file, char* word);

// The node's option of that kind (1 include path, 3 source path) into *value:
// 1 when the node has it, 0 otherwise (or without the service).
int getNodeOption(IdeHandle node, long kind, String* value);
