// The generated class files, line by line: these texts are compiled by the
// user, so each one is written exactly, spaces before ";" and "(" included.
#include "rcgen/rc_class_emitter.h"

#include <cstdarg>
#include <cstdio>

namespace {

__attribute__((format(printf, 2, 3))) void append(std::string* out, const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list again;
  va_copy(again, args);
  int length = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  if (length > 0) {
    size_t at = out->size();
    out->resize(at + static_cast<size_t>(length) + 1);
    std::vsnprintf(&(*out)[at], static_cast<size_t>(length) + 1, format, again);
    out->resize(at + static_cast<size_t>(length));
  }
  va_end(again);
}

std::vector<const RcMenuItem*> itemsOfMenu(const RcDialog& dialog, const std::vector<RcMenuItem>& items) {
  std::vector<const RcMenuItem*> own;
  if (dialog.menu.empty()) return own;
  for (const RcMenuItem& item : items)
    if (item.menu == dialog.menu) own.push_back(&item);
  return own;
}

void emitInit(const RcDialog& dialog, RcUnitText* unit) {
  const char* d = dialog.name.c_str();
  for (const RcControl& control : dialog.controls)
    append(&unit->header, "    %s %s ;\n", control.className.c_str(), control.member.c_str());
  append(&unit->header, "  public :\n    void rcInit() ;\n");
  append(&unit->implementation, "void rc%s::rcInit()\n{\n", d);
  for (const RcControl& control : dialog.controls)
    append(&unit->implementation, "  %s.Get(this, %s) ;\n", control.member.c_str(), control.id.c_str());
  append(&unit->implementation, "}\n");
  append(&unit->header, "    char *Name() ;\n");
  append(&unit->implementation, "\nchar *rc%s::Name()\n{\n  return(\"%s\") ;\n}\n", d, d);
}

void emitControlHandlers(const RcDialog& dialog, RcUnitText* unit) {
  const char* d = dialog.name.c_str();
  for (const RcControl& control : dialog.controls) {
    const char* member = control.member.c_str();
    if (isNotificationClass(control.className.str())) {
      append(&unit->header, "    virtual int cmd%s(NMHDR *ndr) ;\n", member);
      append(&unit->implementation, "\n#pragma argsused\nint rc%s::cmd%s(NMHDR *hdr)\n{\n  return(0) ;\n}\n", d, member);
      continue;
    }
    append(&unit->header, "    virtual int cmd%s(int notify) ;\n", member);
    append(&unit->implementation, "\n#pragma argsused\nint rc%s::cmd%s(int notify)\n{\n", d, member);
    if (control.id == "IDOK") append(&unit->implementation, "  End(1) ;\n");
    else if (control.id == "IDCANCEL") append(&unit->implementation, "  End(0) ;\n");
    append(&unit->implementation, "  return(0) ;\n}\n");
  }
}

void emitWindowMessages(const RcDialog& dialog, const std::vector<const RcMenuItem*>& own, RcUnitText* unit) {
  const char* d = dialog.name.c_str();
  append(&unit->header, "    int wmCommand(int id, int notify) ;\n");
  append(&unit->implementation, "\n#pragma argsused\nint rc%s::wmCommand(int id, int notify)\n{\n  switch (id)\n  {\n", d);
  for (const RcControl& control : dialog.controls)
    if (!isNotificationClass(control.className.str()))
      append(&unit->implementation, "    case %s : return(cmd%s(notify)) ;\n", control.id.c_str(), control.member.c_str());
  for (const RcMenuItem* item : own)
    append(&unit->implementation, "    case %s : return(mnu%s()) ;\n", item->code.c_str(), item->member.c_str());
  append(&unit->implementation, "  }\n  return(Dialog::wmCommand(id, notify)) ;\n}\n\n");

  append(&unit->header, "    void wmNotify(NMHDR *hdr) ;\n");
  append(&unit->implementation, "\n#pragma argsused\nvoid rc%s::wmNotify(NMHDR *hdr)\n{\n  switch (hdr->idFrom)\n  {\n", d);
  for (const RcControl& control : dialog.controls) {
    if (!isNotificationClass(control.className.str())) continue;
    append(&unit->implementation, "  case %s : ", control.id.c_str());
    if (control.className == "TabControl") append(&unit->implementation, "if (hdr->code==TCN_SELCHANGE) ");
    append(&unit->implementation, "cmd%s(hdr) ; return ;\n", control.member.c_str());
  }
  append(&unit->implementation, "  }\n  Dialog::wmNotify(hdr) ;\n}\n\n");
}

}  // namespace

bool isNotificationClass(const std::string& className) {
  return className == "TabControl" || className == "TreeView" || className == "ListView";
}

void emitUnitOpening(const std::string& unitName, RcUnitText* unit) {
  const char* n = unitName.c_str();
  append(&unit->header, "// Generated file : do not edit by hand\n#ifndef _rc%s_h_\n#define _rc%s_h_\n", n, n);
  append(&unit->implementation, "// Generated file : do not edit by hand\n#include \"kesto.h\"\n#include \"rc%s.h\"\n", n);
}

void emitUnitClosing(const std::string& unitName, RcUnitText* unit) {
  // The project-wide unit expands the framework's main macro once for the whole project.
  if (unitName.empty()) append(&unit->implementation, "\nRCRCMAIN\n\n");
  append(&unit->header, "\n#endif\n");
}

void emitMenuMacros(const std::vector<RcMenuItem>& items, std::string* header) {
  for (size_t i = 0; i < items.size(); ++i) {
    if (i == 0 || items[i].menu != items[i - 1].menu)
      append(header, "\n\n#define CallBar_%s() \\\n", items[i].menu.c_str());
    append(header, "if (code==%s) { mnu%s() ; return(1) ; };\\\n", items[i].code.c_str(), items[i].member.c_str());
  }
  append(header, "\n\n");

  // The last declaration ends without ";": the user's class writes it after the macro.
  int count = 0;
  for (size_t i = 0; i < items.size(); ++i) {
    if (i == 0 || items[i].menu != items[i - 1].menu) {
      if (count > 0) append(header, ";\\\n");
      count = 0;
      append(header, "\n\n#define Menubar_%s \\\n", items[i].menu.c_str());
    }
    if (count > 0) append(header, ";\\\n");
    append(header, "virtual void mnu%s() ", items[i].member.c_str());
    ++count;
  }
  if (!items.empty()) append(header, "\n\n");
}

void emitClassHead(const RcDialog& dialog, std::string* header) {
  const char* d = dialog.name.c_str();
  append(header, "\n/*\n%s()\n*/\nclass rc%s : public Dialog\n{\n  public :\n", d, d);
}

void emitClassBody(const RcDialog& dialog, const std::vector<RcMenuItem>& items, RcUnitText* unit) {
  std::vector<const RcMenuItem*> own = itemsOfMenu(dialog, items);
  emitInit(dialog, unit);
  emitControlHandlers(dialog, unit);
  for (const RcMenuItem* item : own) {
    append(&unit->header, "    virtual int mnu%s() ;\n", item->member.c_str());
    append(&unit->implementation, "\nint rc%s::mnu%s()\n{\n  return(0) ;\n}\n", dialog.name.c_str(), item->member.c_str());
  }
  emitWindowMessages(dialog, own, unit);
  append(&unit->header, "} ;\n");
}
