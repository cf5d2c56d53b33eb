// The documentation model: symbols, classes, files and the project that owns them all.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "foundation/kstring.h"
#include "foundation/tableau.h"

// Which existing entry of a name a find-or-add may return: one still lacking a
// declaration, one still lacking documentation, or any (for methods: one with neither).
// Pairing the n-th comment with the n-th definition of a name rests on this.
enum class htKind { Declaration, Documentation, Any };

// A documented thing: a free function, a method or a macro, and the base of the
// other model classes. Its text conversion is its name (the collections sort by it).
class htSymbol : public Basic {
 public:
  String name;
  String brief;
  String documentation;  // lines ended by "\n"; a "~" line ends with code 3 then "\n"
  String declaration;    // source lines, each ended by "\n"

  htSymbol() = default;
  explicit htSymbol(const std::string& symbolName) : name(symbolName) {}
  htSymbol(const htSymbol&) = delete;
  htSymbol& operator=(const htSymbol&) = delete;

  bool hasDocumentation() const { return !documentation.empty(); }
  bool hasDeclaration() const { return !declaration.empty(); }
  bool suits(htKind kind) const;

  operator char*() override { return const_cast<char*>(name.c_str()); }
  operator long int() override { return 0; }

  // Creation order: ties between equal names sort by it, so the order of
  // overloads is the same on every platform's sort.
  uint32_t serial = 0;
};

// The entries of one name in creation order. Entries only ever gain a
// declaration or documentation, so an entry that no longer suits a kind never
// will again: the search for each kind resumes where it stopped, and thousands
// of entries of one name are paired in linear time.
class htSameName {
 public:
  // The first entry that suits kind, or null. With anyMeansBlank, Any asks for
  // an entry with neither documentation nor declaration.
  htSymbol* firstSuiting(htKind kind, bool anyMeansBlank);
  void add(htSymbol* entry) { entries_.push_back(entry); }

 private:
  std::vector<htSymbol*> entries_;
  size_t firstCandidate_[3] = {0, 0, 0};  // by htKind
};

class htClass : public htSymbol {
 public:
  explicit htClass(const std::string& className = "");
  Tableau<htSymbol> methods;  // owned, in the order of creation

  // The rule of htKind on the methods of this class; Any means an entry with
  // neither documentation nor declaration.
  htSymbol* findOrAddMethod(const std::string& methodName, htKind kind, uint32_t serial);

 private:
  std::unordered_map<std::string, htSameName> methodsByName_;
};

class htFile : public htSymbol {
 public:
  // The name is the path's last component; documentation is the file comment.
  explicit htFile(const std::string& filePath = "");
  String path;
  // These refer to entries the project owns, in the order this file added them.
  Tableau<htSymbol> macros;
  Tableau<htSymbol> functions;
  Tableau<htClass> classes;
};

// The project owns every class, free function, macro and file.
class htProjet : public htSymbol {
 public:
  htProjet(const std::string& projectName, const std::string& rootDirectory, const std::string& filterList);

  String directory;
  String filters;  // patterns separated by ";"
  Ensemble<htSymbol> functions;
  Ensemble<htClass> classes;
  Ensemble<htSymbol> macros;
  Tableau<htFile> files;

  htFile* addFile(const std::string& path);
  // An existing class is added to the file's classes if the file lacks it.
  htClass* findOrAddClass(const std::string& className, htFile& file);
  htSymbol* findOrAddMacro(const std::string& macroName, htFile& file, htKind kind);
  htSymbol* findOrAddFunction(const std::string& functionName, htFile& file, htKind kind);
  // Sorts the four collections by name; equal names keep their creation order.
  void sortCollections();
  uint32_t nextSerial() { return ++serial_; }

 private:
  htSymbol* findOrAdd(Ensemble<htSymbol>& all, Tableau<htSymbol>& ofFile,
                      std::unordered_map<std::string, htSameName>& byName, const std::string& symbolName,
                      htKind kind);

  // Name indexes, so that reading a large tree stays linear.
  std::unordered_map<std::string, htClass*> classByName_;
  std::set<std::pair<const htClass*, const htFile*>> classInFile_;
  std::unordered_map<std::string, htSameName> functionsByName_;
  std::unordered_map<std::string, htSameName> macrosByName_;
  uint32_t serial_ = 0;
};
