// The groupware page's controls and storing.
#include "groupware/groupware_page.h"

std::vector<PageControl> GroupwarePage::controls() {
  return {
      checkControl(1010, "Enable/Disable groupware", &enabled_),
      checkControl(1011, "Send a mail at each Get action", &mailOnGet_),
      checkControl(1012, "Send a mail at each Send action", &mailOnSend_),
      textControl(1013, "Set filters for use", &filters_, kMaxFiltersLength),
      textControl(kServerEdit, "Set server directory for the current project", &server_, kMaxServerLength),
  };
}

void GroupwarePage::show() {
  enabled_ = settings_.enabled;
  mailOnGet_ = settings_.mailOnGet;
  mailOnSend_ = settings_.mailOnSend;
  filters_ = settings_.filters.str();
  server_ = project_ ? project_->groupwareServer : std::string();
}

void GroupwarePage::store() {
  settings_.enabled = enabled_;
  settings_.mailOnGet = mailOnGet_;
  settings_.mailOnSend = mailOnSend_;
  settings_.filters = filters_;
  if (project_) {
    settings_.server = server_;
    project_->groupwareServer = server_;
  }
  settings_.save();
}
