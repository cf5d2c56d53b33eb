// The binding shorthands and the hint lookup of the option pages.
#include "project/option_page.h"

PageControl checkControl(int32_t id, const std::string& hint, int32_t* value) {
  PageControl control{id, PageControlKind::Check, hint};
  control.value = value;
  return control;
}

PageControl checkControl(int32_t id, const std::string& hint, bool* flag) {
  PageControl control{id, PageControlKind::Check, hint};
  control.flag = flag;
  return control;
}

PageControl radioControl(int32_t id, const std::string& hint, int32_t* value, int32_t radioValue) {
  PageControl control{id, PageControlKind::Radio, hint};
  control.value = value;
  control.radioValue = radioValue;
  return control;
}

PageControl numberControl(int32_t id, const std::string& hint, int32_t* value) {
  PageControl control{id, PageControlKind::Number, hint};
  control.value = value;
  return control;
}

PageControl textControl(int32_t id, const std::string& hint, std::string* text, size_t limit) {
  PageControl control{id, PageControlKind::Text, hint};
  control.text = text;
  control.textLimit = limit;
  return control;
}

PageControl staticControl(int32_t id, std::string* text) {
  PageControl control{id, PageControlKind::Static, ""};
  control.text = text;
  return control;
}

PageControl listControl(int32_t id, const std::string& hint, std::vector<std::string>* rows, int32_t* selected) {
  PageControl control{id, PageControlKind::List, hint};
  control.rows = rows;
  control.selected = selected;
  return control;
}

PageControl keyControl(int32_t id, const std::string& hint, std::string* text) {
  PageControl control{id, PageControlKind::KeyField, hint};
  control.text = text;
  return control;
}

PageControl buttonControl(int32_t id, const std::string& hint) { return PageControl{id, PageControlKind::Button, hint}; }

std::string OptionPage::hint(int32_t id) {
  for (const PageControl& control : controls())
    if (control.id == id) return control.hint;
  return std::string();
}
