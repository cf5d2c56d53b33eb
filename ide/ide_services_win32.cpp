// The editor, status line and project option operations on the held services.
#include "ide/ide_services_win32.h"

#include <cstring>

#include "ide/addon_slots_win32.h"
#include "completion/caret_text.h"

namespace {

template <typename Interface>
Interface* held(const std::unique_ptr<ServiceHolder<Interface>>& holder) {
  return holder ? holder->get() : nullptr;
}

}  // namespace

void showStatusText(const char* text) {
  IIdeStatusLine* status = held(addon().statusLine);
  if (!status) return;
  IdeText ideText(text);
  if (ideText) status->SetText(ideText.get());
}

EditorSession::EditorSession(const std::string& file) : editor_(held(addon().editor)) {
  if (!editor_) return;
  IdeText name(file);
  if (!name) return;
  view_ = editor_->FindView(name.get());
  if (!view_) return;
  editor_->BeginTransaction();
  editor_->MakeCurrent(view_);
}

EditorSession::~EditorSession() {
  if (view_) editor_->EndTransaction();
}

void EditorSession::cursor(long* column, long* line) const {
  *column = 0;
  *line = 0;
  if (view_) editor_->GetCursor(view_, column, line);
}

void EditorSession::moveCursor(long column, long line) {
  if (view_) editor_->SetCursor(view_, column, line);
}

void EditorSession::scrollToLine(long line) {
  if (view_) editor_->ScrollToLine(view_, line);
}

std::string EditorSession::line(long number) const {
  std::string text;
  if (view_) takeIdeText(editor_->GetLine(view_, number), &text);
  return text;
}

void EditorSession::insert(const std::string& text, bool moveCursorPast) {
  if (!view_) return;
  IdeText ideText(text);
  if (!ideText) return;
  long column = 0;
  long line = 0;
  editor_->GetCursor(view_, &column, &line);
  editor_->InsertText(view_, ideText.get());
  if (moveCursorPast) editor_->SetCursor(view_, column + static_cast<long>(text.size()), line);
}

bool EditorSession::text(std::string* text) const {
  return view_ && takeIdeText(editor_->ReadBuffer(view_), text);
}

void goToLine(const std::string& file, long line) {
  EditorSession session(file);
  if (!session.open()) return;
  session.moveCursor(1, line);
  session.scrollToLine(line + 1);
}

void wordAtCursor(const std::string& file, char* word) {
  word[0] = 0;
  EditorSession session(file);
  if (!session.open()) return;
  long column = 0;
  long line = 0;
  session.cursor(&column, &line);
  const std::string found = wordAtCursor(session.line(line), static_cast<int32_t>(column));
  std::memcpy(word, found.c_str(), found.size() + 1);
  if (column > 1) session.moveCursor(column, line);
}

int getNodeOption(IdeHandle node, long kind, String* value) {
  IIdeNodeOptions* options = held(addon().options);
  if (!options) return 0;
  IIdeString* text = nullptr;
  if (!options->GetNodeOption(node, kind, &text)) {
    if (text) text->Release();
    return 0;
  }
  std::string copy;
  if (!takeIdeText(text, &copy)) return 0;
  *value = copy;
  return 1;
}
