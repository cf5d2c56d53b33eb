// One page of the add-on's options chapter as a portable presenter: the
// controls bound to its fields, their help texts, the check and the storing.
// The Win32 page only moves values between its controls and these fields.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

enum class PageControlKind {
  Check,     // a check box bound to *flag or to *value (0 or 1)
  Radio,     // one button of a group: checked while *value == radioValue
  Number,    // an edit holding a signed decimal *value
  Text,      // an edit holding *text, cut at textLimit when it is not 0
  Static,    // a text the user reads: *text, never read back
  List,      // a list box of *rows with the selection *selected (-1 for none)
  KeyField,  // a button showing *text; a click captures a key for keyCaptured()
  Button,    // a command of the page, handled by command()
};

struct PageControl {
  int32_t id;
  PageControlKind kind;
  std::string hint;  // the help text the IDE shows while the control has the focus
  int32_t* value = nullptr;
  bool* flag = nullptr;
  std::string* text = nullptr;
  std::vector<std::string>* rows = nullptr;
  int32_t* selected = nullptr;
  int32_t radioValue = 0;
  size_t textLimit = 0;
};

// Shorthands for the binding tables of the pages.
PageControl checkControl(int32_t id, const std::string& hint, int32_t* value);
PageControl checkControl(int32_t id, const std::string& hint, bool* flag);
PageControl radioControl(int32_t id, const std::string& hint, int32_t* value, int32_t radioValue);
PageControl numberControl(int32_t id, const std::string& hint, int32_t* value);
PageControl textControl(int32_t id, const std::string& hint, std::string* text, size_t limit = 0);
PageControl staticControl(int32_t id, std::string* text);
PageControl listControl(int32_t id, const std::string& hint, std::vector<std::string>* rows, int32_t* selected);
PageControl keyControl(int32_t id, const std::string& hint, std::string* text);
PageControl buttonControl(int32_t id, const std::string& hint);

class OptionPage {
 public:
  virtual ~OptionPage() = default;

  // The page's controls, each bound to the field it edits; the pointers stay
  // valid for the presenter's life.
  virtual std::vector<PageControl> controls() = 0;
  // Fills the fields from the settings, each time the page is shown.
  virtual void show() = 0;
  // The user changed control id (its new value is already in its field) or
  // pressed the button id. Any change marks the page as modified.
  virtual void changed(int32_t id) { (void)id; }
  // The key capture of key field id gave a key code and its text.
  virtual void keyCaptured(int32_t id, uint32_t code, const std::string& text) {
    (void)id;
    (void)code;
    (void)text;
  }
  // Whether control id takes input now (a per-project control without a project does not).
  virtual bool enabled(int32_t id) const {
    (void)id;
    return true;
  }
  // False refuses the dialog's acceptance, after telling the user with a box.
  virtual bool check() { return true; }
  // Writes the fields into the settings (and the project's options).
  virtual void store() = 0;

  // The help text of control id; empty for a control the page does not bind.
  std::string hint(int32_t id);

  bool modified = false;
};

struct ProjectOptions;

// A page that edits the open project's options: every control is disabled and
// nothing is stored while no project is open.
class ProjectOptionPage : public OptionPage {
 public:
  // The options are borrowed for the page's life; null when no project is open.
  explicit ProjectOptionPage(ProjectOptions* project) : project_(project) {}
  void changed(int32_t) override { modified = true; }
  bool enabled(int32_t) const override { return project_ != nullptr; }

 protected:
  ProjectOptions* project_;
};
