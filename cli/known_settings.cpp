// The table of known settings, gathered by running the features' readers once
// against an empty store: the defaults are the readers' own, never copied.
#include "cli/known_settings.h"

#include "cli/build_number.h"
#include "cli/sendmail_transport.h"
#include "completion/completion_engine.h"
#include "delivery/mail.h"
#include "foundation/regedit_text.h"
#include "foundation/settings.h"
#include "groupware/groupware_settings.h"
#include "html/html_settings.h"
#include "navigation/quickfind_settings.h"
#include "navigation/source_scanner.h"
#include "project/general_options.h"
#include "tasks/task_list.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_settings.h"

namespace {

// Every value absent, so that each reader asks for its default.
class EmptyStore : public SettingsBackend {
 public:
  bool read(const std::string&, const std::string&, size_t, std::string*) override { return false; }
  bool write(const std::string&, const std::string&, const std::string&) override { return false; }
  bool list(const std::string&, std::vector<SettingsValue>*) override { return false; }
  std::vector<std::string> subkeys(const std::string&) override { return {}; }
};

// Compared as the registry compares names, without regard to case.
const KnownSetting* findIn(const std::vector<KnownSetting>& settings, const std::string& section,
                           const std::string& name) {
  for (const KnownSetting& setting : settings)
    if (foldedCase(setting.section) == foldedCase(section) && foldedCase(setting.name) == foldedCase(name))
      return &setting;
  return nullptr;
}

// Each setting once, at its first read.
class Collector : public SettingsReadObserver {
 public:
  void onRead(const std::string& section, const std::string& name, bool integer,
              const std::string& defaultText) override {
    if (!findIn(known, section, name)) known.push_back({section, name, integer, defaultText});
  }
  std::vector<KnownSetting> known;
};

std::vector<KnownSetting> collectKnownSettings() {
  SettingsStore& store = settings();
  SettingsBackend* backend = store.backend();
  EmptyStore empty;
  Collector collector;
  store.setBackend(&empty);
  store.setReadObserver(&collector);
  // In the order of the options dialog's pages.
  GeneralOptions::read();
  MenuSettings::read();
  QuickFindSettings::read();
  TopBarSettings::read(true);
  RecentFiles().load();
  CompletionEngine().readSettings();
  Mail().loadSettings();
  sendmailCommand();
  TaskList().loadSettings();
  GroupwareSettings().load();
  HtmlSettings::read("");
  storedBuildNumber();
  store.setReadObserver(nullptr);
  store.setBackend(backend);
  return collector.known;
}

}  // namespace

const std::vector<KnownSetting>& knownSettings() {
  static const std::vector<KnownSetting> known = collectKnownSettings();
  return known;
}

const KnownSetting* findKnownSetting(const std::string& section, const std::string& name) {
  return findIn(knownSettings(), section, name);
}
