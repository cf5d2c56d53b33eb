// Documentation text and declarations as HTML: escapes, italics, parameter and
// return marks, keywords in bold and words linked to the project's entries.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "html/ht_model.h"

// What the words of a text may link to, and the entry numbers of the pages.
// Built once a project is sorted; it must outlive nothing but the writing.
class htLinkIndex {
 public:
  explicit htLinkIndex(htProjet& project);

  // An entry's position in the project's functions or macros; kNotFound otherwise.
  int32_t functionNumber(const htSymbol* entry) const;
  int32_t macroNumber(const htSymbol* entry) const;

  // Writes word as a link to the class, else the macro, else the function it
  // names (the first of that name), unless it is self's name; else as it is.
  void writeWord(std::string& out, std::string_view word, std::string_view self) const;

 private:
  std::unordered_map<const htSymbol*, int32_t> functionNumbers_;
  std::unordered_map<const htSymbol*, int32_t> macroNumbers_;
  std::unordered_map<std::string_view, const htSymbol*> firstClass_;
  std::unordered_map<std::string_view, const htSymbol*> firstMacro_;
  std::unordered_map<std::string_view, const htSymbol*> firstFunction_;
};

// The long form (a function page's documentation) heads the parameters and the
// return value with titles; every other text uses the short form.
enum class htProseForm { Short, Long };

// Documentation or a brief; self is the name of the entry the text documents.
void writeHtProse(std::string& out, const String& text, htProseForm form, const htLinkIndex& links,
                  std::string_view self);
// A declaration inside "<pre>".
void writeHtCode(std::string& out, const String& text, const htLinkIndex& links, std::string_view self);
