// Reading and writing the per-project options in the orders that opening and saving use.
#include "project/project_options.h"

#include <cstdio>
#include <cstring>

namespace {

// A corrupt count must not make opening loop for minutes: entries past this are never read.
constexpr int32_t kMaxIndexedEntries = 65535;

std::string indexed(const char* pattern, int32_t index) {
  char name[64];
  std::snprintf(name, sizeof name, pattern, static_cast<int>(index));
  return name;
}

void readInteger(ProjectOptionStore& store, const std::string& name, int32_t* value) {
  std::string bytes;
  if (store.get(name, &bytes)) decodeIntegerOption(bytes, value);
}

bool readText(ProjectOptionStore& store, const std::string& name, std::string* value) {
  std::string bytes;
  return store.get(name, &bytes) && decodeTextOption(bytes, value);
}

}  // namespace

std::string encodeIntegerOption(int32_t value) {
  uint32_t raw = static_cast<uint32_t>(value);
  std::string bytes(4, '\0');
  for (int i = 0; i < 4; ++i) bytes[static_cast<size_t>(i)] = static_cast<char>(raw >> (8 * i));
  return bytes;
}

std::string encodeTextOption(char marker, const std::string& text) {
  std::string bytes(1, marker);
  bytes += text;
  bytes += '\0';
  return bytes;
}

bool decodeIntegerOption(const std::string& bytes, int32_t* value) {
  if (bytes.size() != 4) return false;
  uint32_t raw = 0;
  for (int i = 0; i < 4; ++i) raw |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[static_cast<size_t>(i)])) << (8 * i);
  *value = static_cast<int32_t>(raw);
  return true;
}

bool decodeTextOption(const std::string& bytes, std::string* text) {
  if (bytes.empty()) return false;
  std::string rest = bytes.substr(1);
  *text = rest.substr(0, std::strlen(rest.c_str()));
  return true;
}

ProjectOptions readProjectOptions(ProjectOptionStore& store, int32_t hierarchicalDefault) {
  ProjectOptions options;
  options.hierarchical = hierarchicalDefault;
  readInteger(store, "Kesto_HIERARCH", &options.hierarchical);
  readInteger(store, "Kesto_HIDEWITHVIEW", &options.hideWithView);
  readInteger(store, "Kesto_EWindows", &options.generateWindows);
  readInteger(store, "Kesto_GenRC", &options.generateRc);
  readInteger(store, "Kesto_HTMLEN", &options.htmlEnabled);
  readInteger(store, "Kesto_HTMLAU", &options.htmlAuto);
  readText(store, "Kesto_HTMLFI", &options.htmlFilters);
  readInteger(store, "Kesto_NB_ODR", &options.deliveryGroupCount);
  readInteger(store, "Kesto_WITHDELIVERY", &options.withDelivery);
  for (int32_t i = 0; i < options.deliveryGroupCount && i < kMaxIndexedEntries; ++i) {
    DeliveryGroupOption group;
    readText(store, indexed("Kesto_ODR_TYP_%d", i), &group.type);
    if (group.type.empty()) continue;
    readText(store, indexed("Kesto_ODR_REP_%d", i), &group.directory);
    readInteger(store, indexed("Kesto_ODR_ACT_%d", i), &group.active);
    options.deliveryGroups.push_back(group);
  }
  readText(store, "KestoGroupwareServer", &options.groupwareServer);
  readInteger(store, "Kesto_NB_MAIL", &options.mailCount);
  for (int32_t i = 0; i < options.mailCount && i < kMaxIndexedEntries; ++i) {
    std::string recipient;
    if (readText(store, indexed("Kesto_MAIL_PJ_%d", i), &recipient) && !recipient.empty())
      options.mailRecipients.push_back(recipient);
  }
  return options;
}

bool writeProjectOptions(ProjectOptionStore& store, const ProjectOptions& options) {
  bool ok = true;
  auto integer = [&](const std::string& name, int32_t value) { ok = store.set(name, encodeIntegerOption(value)) && ok; };
  auto text = [&](const std::string& name, char marker, const std::string& value) {
    ok = store.set(name, encodeTextOption(marker, value)) && ok;
  };
  integer("Kesto_HIERARCH", options.hierarchical);
  integer("Kesto_HIDEWITHVIEW", options.hideWithView);
  integer("Kesto_WITHDELIVERY", options.withDelivery);
  integer("Kesto_NB_ODR", static_cast<int32_t>(options.deliveryGroups.size()));
  for (size_t i = 0; i < options.deliveryGroups.size(); ++i) {
    text(indexed("Kesto_ODR_TYP_%d", static_cast<int32_t>(i)), '+', options.deliveryGroups[i].type);
    text(indexed("Kesto_ODR_REP_%d", static_cast<int32_t>(i)), '+', options.deliveryGroups[i].directory);
    integer(indexed("Kesto_ODR_ACT_%d", static_cast<int32_t>(i)), options.deliveryGroups[i].active);
  }
  integer("Kesto_NB_MAIL", static_cast<int32_t>(options.mailRecipients.size()));
  for (size_t i = 0; i < options.mailRecipients.size(); ++i)
    text(indexed("Kesto_MAIL_PJ_%d", static_cast<int32_t>(i)), '+', options.mailRecipients[i]);
  text("KestoGroupwareServer", '~', options.groupwareServer);
  integer("Kesto_EWindows", options.generateWindows);
  integer("Kesto_GenRC", options.generateRc);
  integer("Kesto_HTMLEN", options.htmlEnabled);
  integer("Kesto_HTMLAU", options.htmlAuto);
  text("Kesto_HTMLFI", '~', options.htmlFilters);
  return ok;
}

const std::vector<ProjectOptionInfo>& projectOptionTable() {
  static const std::vector<ProjectOptionInfo> table = {
      {"Kesto_HIERARCH", true, 0},        {"Kesto_HIDEWITHVIEW", true, 0},  {"Kesto_EWindows", true, 0},
      {"Kesto_GenRC", true, 0},           {"Kesto_HTMLEN", true, 0},        {"Kesto_HTMLAU", true, 0},
      {"Kesto_HTMLFI", false, '~'},       {"Kesto_WITHDELIVERY", true, 0},  {"Kesto_NB_ODR", true, 0},
      {"Kesto_ODR_TYP_%d", false, '+'},   {"Kesto_ODR_REP_%d", false, '+'}, {"Kesto_ODR_ACT_%d", true, 0},
      {"KestoGroupwareServer", false, '~'},
      {"Kesto_NB_MAIL", true, 0},         {"Kesto_MAIL_PJ_%d", false, '+'},
  };
  return table;
}

const ProjectOptionInfo* findProjectOption(const std::string& name) {
  for (const ProjectOptionInfo& info : projectOptionTable()) {
    const char* percent = std::strstr(info.name, "%d");
    if (!percent) {
      if (name == info.name) return &info;
      continue;
    }
    std::string prefix(info.name, static_cast<size_t>(percent - info.name));
    if (name.size() <= prefix.size() || name.compare(0, prefix.size(), prefix) != 0) continue;
    bool digits = true;
    for (size_t i = prefix.size(); i < name.size(); ++i) digits = digits && name[i] >= '0' && name[i] <= '9';
    if (digits) return &info;
  }
  return nullptr;
}
