// Runs of documentation and code text turned into HTML.
#include "html/ht_prose.h"

#include "html/ht_reader.h"

namespace {

constexpr unsigned char kMark = 0xA7;  // the section sign of the Latin-1 code page
constexpr char kLineMark = 3;          // a source line that ended with "~"

template <typename Entry>
void indexFirsts(Ensemble<Entry>& all, std::unordered_map<std::string_view, const htSymbol*>* firsts,
                 std::unordered_map<const htSymbol*, int32_t>* numbers) {
  for (int32_t i = 0; i < all.count(); ++i) {
    const htSymbol* entry = all[i];
    firsts->emplace(std::string_view(entry->name.c_str(), entry->name.length()), entry);
    if (numbers) numbers->emplace(entry, i);
  }
}

int32_t numberOf(const std::unordered_map<const htSymbol*, int32_t>& numbers, const htSymbol* entry) {
  auto found = numbers.find(entry);
  return found == numbers.end() ? BasicTableau::kNotFound : found->second;
}

size_t wordEnd(std::string_view text, size_t pos) {
  while (pos < text.size() && isHtIdentifierChar(static_cast<unsigned char>(text[pos]))) ++pos;
  return pos;
}

bool isKeyword(std::string_view word) {
  static const char* const kKeywords[] = {"public",   "private", "protected", "virtual", "static",  "friend",
                                          "const",    "operator", "class",    "CLASS",   "template", "__export",
                                          "export",   "_export", "_import",   "__import", "extern"};
  for (const char* keyword : kKeywords)
    if (word == keyword) return true;
  return false;
}

// The characters between words, escaped, with the italics of "//" comments
// open until the line's end.
class RunWriter {
 public:
  RunWriter(std::string& out, std::string_view text) : out_(out), text_(text) {}

  // Writes the character at *pos (two for an opening "//") and moves past it.
  void writeOther(size_t* pos) {
    char c = text_[*pos];
    ++*pos;
    switch (c) {
      case '&':
        out_ += "&#38";
        return;
      case '<':
        out_ += "&#60";
        return;
      case '>':
        out_ += "&#62";
        return;
      case '"':
        out_ += "&#34";
        return;
      case kLineMark:
        out_ += "<br>\n";
        return;
      case '\n':
        out_ += italic_ ? "</I>\n" : "\n";
        italic_ = false;
        return;
      case '/':
        // Every "//" gets its "<I>", also one on a line already in italics;
        // the line end closes italics once.
        if (*pos < text_.size() && text_[*pos] == '/') {
          out_ += "<I>//";
          italic_ = true;
          ++*pos;
          return;
        }
        break;
      default:
        break;
    }
    out_ += c;
  }

 private:
  std::string& out_;
  std::string_view text_;
  bool italic_ = false;
};

std::string_view viewOf(const String& text) { return std::string_view(text.c_str(), text.length()); }

}  // namespace

htLinkIndex::htLinkIndex(htProjet& project) {
  indexFirsts(project.classes, &firstClass_, nullptr);
  indexFirsts(project.macros, &firstMacro_, &macroNumbers_);
  indexFirsts(project.functions, &firstFunction_, &functionNumbers_);
}

int32_t htLinkIndex::functionNumber(const htSymbol* entry) const { return numberOf(functionNumbers_, entry); }

int32_t htLinkIndex::macroNumber(const htSymbol* entry) const { return numberOf(macroNumbers_, entry); }

void htLinkIndex::writeWord(std::string& out, std::string_view word, std::string_view self) const {
  if (word == self) {
    out.append(word);
    return;
  }
  if (firstClass_.count(word)) {
    out.append("<a href =\"Class ").append(word).append(".html\" target=\"space\">").append(word).append("</a>");
    return;
  }
  auto writeNumbered = [&out, word](const char* page, int32_t number) {
    out.append("<a href =\"").append(page).append(word).append(" ").append(std::to_string(number));
    out.append(".html\" target=\"space\">").append(word).append("</a>");
  };
  auto macro = firstMacro_.find(word);
  if (macro != firstMacro_.end()) return writeNumbered("Define ", macroNumber(macro->second));
  auto function = firstFunction_.find(word);
  if (function != firstFunction_.end()) return writeNumbered("Fnc ", functionNumber(function->second));
  out.append(word);
}

void writeHtProse(std::string& out, const String& prose, htProseForm form, const htLinkIndex& links,
                  std::string_view self) {
  if (prose.empty()) {
    out += "<I>Pas de documentation disponible !</I><br>";
    return;
  }
  std::string_view text = viewOf(prose);
  RunWriter runs(out, text);
  bool long_ = form == htProseForm::Long;
  bool parameterSeen = false;
  size_t pos = 0;
  while (pos < text.size()) {
    auto c = static_cast<unsigned char>(text[pos]);
    if (c == kMark && pos + 1 < text.size() && static_cast<unsigned char>(text[pos + 1]) == kMark) {
      out += long_ ? "<br><br><B>Retour :</B><br><br>\n" : "<br><U><I>Retour</I></U> : ";
      pos += 2;
      size_t end = wordEnd(text, pos);
      links.writeWord(out, text.substr(pos, end - pos), self);
      pos = end;
    } else if (c == kMark) {
      if (long_ && !parameterSeen) out += "<br><br><B>Param\xE8tres :</B><br>\n";
      parameterSeen = true;
      size_t end = wordEnd(text, pos + 1);
      out.append("<br><I><CODE>").append(text.substr(pos + 1, end - pos - 1)).append("</CODE></I>");
      pos = end;
    } else if (isHtIdentifierChar(c)) {
      size_t end = wordEnd(text, pos);
      links.writeWord(out, text.substr(pos, end - pos), self);
      pos = end;
    } else {
      runs.writeOther(&pos);
    }
  }
  out += "</pre>\n";
}

void writeHtCode(std::string& out, const String& code, const htLinkIndex& links, std::string_view self) {
  if (code.empty()) {
    out += "<I><pre>Pas de code disponible !</I></pre><br>";
    return;
  }
  std::string_view text = viewOf(code);
  RunWriter runs(out, text);
  out += "<pre>";
  size_t pos = 0;
  while (pos < text.size()) {
    if (!isHtIdentifierChar(static_cast<unsigned char>(text[pos]))) {
      runs.writeOther(&pos);
      continue;
    }
    size_t end = wordEnd(text, pos);
    std::string_view word = text.substr(pos, end - pos);
    if (isKeyword(word))
      out.append("<b>").append(word).append("</b>");
    else
      links.writeWord(out, word, self);
    pos = end;
  }
  out += "</pre>\n";
}
