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

htClass::htClass(const std::string& className) : htSymbol(className) {}

htSymbol* htClass::findOrAddMethod(const std::string& methodName, htKind kind, uint32_t serialNumber) {
  for (int32_t i = 0; i < methods.count(); ++i) {
    htSymbol* method = methods[i];
    if (method->name.str() != methodName) continue;
    bool fits = kind == htKind::Any ? !method->hasDocumentation() && !method->hasDeclaration() : method->suits(kind);
    if (fits) return method;
  }
  auto* method = new htSymbol(methodName);
  method->serial = serialNumber;
  methods.append(method);
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
    if (file.classes.indexOf(existing) == BasicTableau::kNotFound) file.classes.append(existing);
    return existing;
  }
  auto* created = new htClass(className);
  created->serial = nextSerial();
  classes.append(created);
  file.classes.append(created);
  classByName_.emplace(className, created);
  return created;
}

htSymbol* htProjet::findOrAdd(Ensemble<htSymbol>& all, Tableau<htSymbol>& ofFile,
                              std::unordered_map<std::string, std::vector<htSymbol*>>& byName,
                              const std::string& symbolName, htKind kind) {
  std::vector<htSymbol*>& sameName = byName[symbolName];
  for (htSymbol* existing : sameName)
    if (existing->suits(kind)) return existing;
  auto* created = new htSymbol(symbolName);
  created->serial = nextSerial();
  all.append(created);
  ofFile.append(created);
  sameName.push_back(created);
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
