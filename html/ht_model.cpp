// Ownership, find-or-add pairing and sorting of the documentation model.
#include "html/ht_model.h"

#include <cstring>

#include "foundation/os.h"

bool htSymbol::suits(htKind kind) const {
  switch (kind) {
    case htKind::Declaration:
      return !hasDeclaration();
    case htKind::Documentation:
      return !hasDocumentation();
    case htKind::Any:
      return true;
  }
  return false;
}

htSymbol* htSameName::firstSuiting(htKind kind, bool anyMeansBlank) {
  size_t& candidate = firstCandidate_[static_cast<size_t>(kind)];
  auto fits = [&](const htSymbol* entry) {
    if (kind == htKind::Any && anyMeansBlank) return !entry->hasDocumentation() && !entry->hasDeclaration();
    return entry->suits(kind);
  };
  while (candidate < entries_.size() && !fits(entries_[candidate])) ++candidate;
  return candidate < entries_.size() ? entries_[candidate] : nullptr;
}

htClass::htClass(const std::string& className) : htSymbol(className) {}

htSymbol* htClass::findOrAddMethod(const std::string& methodName, htKind kind, uint32_t serialNumber) {
  htSameName& sameName = methodsByName_[methodName];
  if (htSymbol* existing = sameName.firstSuiting(kind, true)) return existing;
  auto* method = new htSymbol(methodName);
  method->serial = serialNumber;
  methods.append(method);
  sameName.add(method);
  return method;
}

htFile::htFile(const std::string& filePath) : htSymbol(fileNameOf(filePath)), path(filePath) {
  macros.setOwns(false);
  functions.setOwns(false);
  classes.setOwns(false);
}

htProjet::htProjet(const std::string& projectName, const std::string& rootDirectory, const std::string& filterList)
    : htSymbol(projectName), directory(rootDirectory), filters(filterList) {}

htFile* htProjet::addFile(const std::string& path) {
  auto* file = new htFile(path);
  file->serial = nextSerial();
  files.append(file);
  return file;
}

htClass* htProjet::findOrAddClass(const std::string& className, htFile& file) {
  auto found = classByName_.find(className);
  if (found != classByName_.end()) {
    htClass* existing = found->second;
    if (classInFile_.emplace(existing, &file).second) file.classes.append(existing);
    return existing;
  }
  auto* created = new htClass(className);
  created->serial = nextSerial();
  classes.append(created);
  file.classes.append(created);
  classInFile_.emplace(created, &file);
  classByName_.emplace(className, created);
  return created;
}

htSymbol* htProjet::findOrAdd(Ensemble<htSymbol>& all, Tableau<htSymbol>& ofFile,
                              std::unordered_map<std::string, htSameName>& byName,
                              const std::string& symbolName, htKind kind) {
  htSameName& sameName = byName[symbolName];
  if (htSymbol* existing = sameName.firstSuiting(kind, false)) return existing;
  auto* created = new htSymbol(symbolName);
  created->serial = nextSerial();
  all.append(created);
  ofFile.append(created);
  sameName.add(created);
  return created;
}

htSymbol* htProjet::findOrAddMacro(const std::string& macroName, htFile& file, htKind kind) {
  return findOrAdd(macros, file.macros, macrosByName_, macroName, kind);
}

htSymbol* htProjet::findOrAddFunction(const std::string& functionName, htFile& file, htKind kind) {
  return findOrAdd(functions, file.functions, functionsByName_, functionName, kind);
}

namespace {

// Byte order of names, then creation order.
int compareByName(const void* slotA, const void* slotB) {
  const auto* a = static_cast<const htSymbol*>(*static_cast<Basic* const*>(slotA));
  const auto* b = static_cast<const htSymbol*>(*static_cast<Basic* const*>(slotB));
  int byText = std::strcmp(a->name.c_str(), b->name.c_str());
  if (byText != 0) return byText;
  return a->serial < b->serial ? -1 : (a->serial > b->serial ? 1 : 0);
}

}  // namespace

void htProjet::sortCollections() {
  functions.sort(compareByName);
  classes.sort(compareByName);
  macros.sort(compareByName);
  files.sort(compareByName);
}
