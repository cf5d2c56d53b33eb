// The resource script reader: line-oriented and tolerant, it recognises a few
// keywords at fixed places and ignores every other line.
#include "rcgen/rc_script_reader.h"

#include <cstring>

#include "foundation/text_encoding.h"
#include "rcgen/rc_class_emitter.h"
#include "rcgen/rc_line_fields.h"

namespace {

// One line of at most 1,022 characters plus its line end; longer lines are read in pieces.
constexpr size_t kLineLimit = 1023;

struct WindowClass {
  const char* spelling;
  const char* upperSpelling;
  const char* frameworkClass;
};

// Button classes are refined by their style; the others map one to one.
const WindowClass kWindowClasses[] = {
    {"button", "BUTTON", "Control"},
    {"edit", "EDIT", "Edit"},
    {"listbox", "LISTBOX", "List"},
    {"combobox", "COMBOBOX", "ComboBox"},
    {"SysListView32", "SYSLISTVIEW32", "ListView"},
    {"msctls_statusbar32", "MSCTLS_STATUSBAR32", "StatusBar"},
    {"ToolbarWindow32", "TOOLBARWINDOW32", "ToolBar"},
    {"msctls_progress32", "MSCTLS_PROGRESS32", "Progress"},
    {"msctls_trackbar32", "MSCTLS_TRACKBAR32", "TrackBar"},
    {"SysTabControl32", "SYSTABCONTROL32", "TabControl"},
    {"SysTreeView32", "SYSTREEVIEW32", "TreeView"},
};

bool contains(std::string_view text, const char* part) { return text.find(part) != std::string_view::npos; }

std::string frameworkClass(const std::string& windowClass, std::string_view style) {
  for (const WindowClass& known : kWindowClasses) {
    if (windowClass != known.spelling && windowClass != known.upperSpelling) continue;
    if (std::strcmp(known.spelling, "button") != 0) return known.frameworkClass;
    if (contains(style, "BS_3STATE") || contains(style, "BS_AUTO3STATE") || contains(style, "BS_CHECKBOX") ||
        contains(style, "BS_AUTOCHECKBOX"))
      return "CheckBox";
    if (contains(style, "BS_RADIOBUTTON") || contains(style, "BS_AUTORADIOBUTTON")) return "Radio";
    return known.frameworkClass;
  }
  return "";
}

// A name such as ABOUT_1036: the fifth-last character "_", the second-last a digit.
bool isLanguageVariant(const std::string& name) {
  size_t n = name.size();
  return n >= 6 && name[n - 5] == '_' && name[n - 2] >= '0' && name[n - 2] <= '9';
}

// Each line of the script as the reader sees it: a line end and what follows a
// zero byte dropped (the reader worked on C strings), then one trailing control
// character.
template <typename Visit>
void forEachScriptLine(std::string_view text, Visit visit) {
  TextModeLines lines(text, kLineLimit);
  std::string_view line;
  while (lines.next(&line)) visit(withoutLineEnd(line.substr(0, line.find('\0'))));
}

void readDialogs(std::string_view text, const std::vector<RcDefine>& defines, const std::vector<RcMenuItem>& items,
                 RcUnitText* unit) {
  bool inside = false;
  RcDialog dialog;
  forEachScriptLine(text, [&](std::string_view line) {
    if (!inside) {
      if (!contains(line, " DIALOG ") && !contains(line, " DIALOGEX ")) return;
      dialog.name.assign(firstToken(line));
      if (isLanguageVariant(dialog.name.str())) return;
      dialog.menu.clear();
      dialog.controls.clear();
      emitClassHead(dialog, &unit->header);
      inside = true;
    } else if (!line.empty() && line[0] == '}') {
      emitClassBody(dialog, items, unit);
      inside = false;
    } else {
      std::string token = firstToken(line);
      RcControl control;
      if (token == "MENU") dialog.menu.assign(std::string(line.size() > 5 ? line.substr(5) : ""));
      else if (token == "CONTROL" && readRcControl(line, defines, &control)) addWithinCapacity(&dialog.controls, control);
    }
  });
}

}  // namespace

std::vector<RcDefine> readRcDefines(std::string_view text) {
  std::vector<RcDefine> defines;
  bool full = false;
  forEachScriptLine(text, [&](std::string_view line) {
    if (full || !startsWith(line, "#define")) return;
    std::string name;
    std::string value;
    size_t end = firstToken(line, line.size() < 8 ? line.size() : 8, &name);
    firstToken(line, end, &value);
    RcDefine define;
    define.name.assign(name);
    define.value.assign(value);
    full = !addWithinCapacity(&defines, define);
  });
  return defines;
}

const RcDefine* findRcDefine(const std::vector<RcDefine>& defines, const std::string& name) {
  for (const RcDefine& define : defines)
    if (define.name == name) return &define;
  return nullptr;
}

std::vector<RcMenuItem> readRcMenuItems(std::string_view text, const std::vector<RcDefine>& defines) {
  std::vector<RcMenuItem> items;
  bool inside = false;
  FixedText<50> menu;
  forEachScriptLine(text, [&](std::string_view line) {
    if (!inside) {
      if (!contains(line, " MENU")) return;
      menu.assign(firstToken(line));
      inside = true;
    } else if (!line.empty() && line[0] == '}') {
      inside = false;
    } else if (firstToken(line) == "MENUITEM") {
      std::string identifier = commaField(line, 1);
      const RcDefine* define = findRcDefine(defines, identifier);
      if (!define) return;  // separators, numeric and unknown identifiers
      RcMenuItem item;
      item.member.assign(memberName(identifier));
      item.menu = menu;
      item.code.assign(define->value.str());
      addWithinCapacity(&items, item);
    }
  });
  return items;
}

bool readRcControl(std::string_view line, const std::vector<RcDefine>& defines, RcControl* control) {
  std::string token;
  size_t start = firstToken(line, 0, &token);
  while (start < line.size() && line[start] == ' ') ++start;
  std::string_view rest = line.substr(start);
  std::string className = frameworkClass(commaField(rest, 2), commaField(rest, 3));
  if (className.empty()) return false;

  std::string identifier = commaField(line, 1);
  if (identifier == "IDOK" || identifier == "IDCANCEL" || identifier == "IDHELP") {
    control->id.assign(identifier);
    control->member.assign(identifier.substr(2));
  } else {
    // Numbers, signs and quotes all sort at or below "9": such identifiers are not symbols.
    if (identifier.empty() || static_cast<unsigned char>(identifier[0]) <= '9') return false;
    const RcDefine* define = findRcDefine(defines, identifier);
    if (!define) return false;
    control->id.assign(define->value.str());
    control->member.assign(memberName(identifier));
  }
  control->className.assign(className);
  return true;
}

void readRcScript(const std::string& script, RcUnitText* unit) {
  std::string decoded;
  std::string_view text = textOf(script, &decoded);
  std::vector<RcDefine> defines = readRcDefines(text);
  std::vector<RcMenuItem> items = readRcMenuItems(text, defines);
  emitMenuMacros(items, &unit->header);
  readDialogs(text, defines, items, unit);
}
