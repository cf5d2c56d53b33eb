// The line reader of documentation sources: idle tests, comment, class body and macro continuation states.
#include "html/ht_reader.h"

#include <algorithm>

#include "html/ht_check.h"

namespace {

using Line = std::string_view;
constexpr size_t npos = std::string_view::npos;

bool startsWith(Line line, Line prefix) { return line.substr(0, prefix.size()) == prefix; }
bool endsWith(Line line, char c) { return !line.empty() && line.back() == c; }
bool contains(Line line, Line part) { return line.find(part) != npos; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }

Line identifierAt(Line line, size_t pos) {
  size_t end = pos;
  while (end < line.size() && isHtIdentifierChar(static_cast<unsigned char>(line[end]))) ++end;
  return pos < line.size() ? line.substr(pos, end - pos) : Line();
}

// The identifier that ends right before `pos`.
Line identifierBefore(Line line, size_t pos) {
  size_t begin = pos;
  while (begin > 0 && isHtIdentifierChar(static_cast<unsigned char>(line[begin - 1]))) --begin;
  return line.substr(begin, pos - begin);
}

size_t skipNonIdentifier(Line line, size_t pos) {
  while (pos < line.size() && !isHtIdentifierChar(static_cast<unsigned char>(line[pos]))) ++pos;
  return pos;
}

Line trimBlanks(Line text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

void appendLine(String& text, Line line) {
  std::string withEnd(line);
  withEnd += '\n';
  text += withEnd.c_str();
}

// Lines as a 4,096-byte line reader sees them: longer lines arrive in parts, a
// zero byte ends a line early, trailing control characters are dropped.
template <typename Visit>
bool forEachLine(std::string_view text, Visit visit) {
  constexpr size_t kPieceLimit = 4095;
  size_t start = 0;
  while (start < text.size()) {
    // The line end is looked for within the piece only, so that one huge line stays linear.
    Line piece = text.substr(start, kPieceLimit);
    size_t end = piece.find('\n');
    if (end != npos) piece = piece.substr(0, end + 1);
    start += piece.size();
    piece = piece.substr(0, piece.find('\0'));
    while (!piece.empty() && static_cast<unsigned char>(piece.back()) < 32) piece.remove_suffix(1);
    if (!visit(piece)) return false;
  }
  return true;
}

class SourceReader {
 public:
  SourceReader(htProjet& project, htFile& file) : project_(project), file_(file) {}

  bool readLine(Line line) {
    if (contains(line, "/*")) inPlainComment_ = true;
    if (contains(line, "*/")) inPlainComment_ = false;
    switch (state_) {
      case State::Idle:
        return readIdle(line);
      case State::Comment:
        readComment(line);
        return true;
      case State::ClassBody:
        appendLine(target_->declaration, line);
        if (!line.empty() && line.front() == '}') state_ = State::Idle;
        return true;
      case State::MacroContinuation:
        appendLine(target_->declaration, line);
        if (!endsWith(line, '\\')) state_ = State::Idle;
        return true;
    }
    return htmlCheck(false, "I_am_dead==0");
  }

 private:
  enum class State { Idle, Comment, ClassBody, MacroContinuation };

  bool readIdle(Line line) {
    size_t n = line.size();
    if (n >= 7 && startsWith(line, "/** ::")) return openHeader(line, 6, classNamed(identifierAt(line, 6)));
    if (n >= 10 && startsWith(line, "/** ") && contains(line, "::")) return openMethodHeader(line);
    if (n >= 7 && startsWith(line, "/** #")) return openHeader(line, 5, macroNamed(identifierAt(line, 5)));
    if (n >= 7 && startsWith(line, "/** ")) return openHeader(line, 4, functionNamed(identifierAt(line, 4)));
    if (!inPlainComment_) {
      bool startsWithIdentifier = n > 0 && isHtIdentifierChar(static_cast<unsigned char>(line.front()));
      if (n > 6 && startsWithIdentifier && !endsWith(line, '\\') && readClassLine(line)) return true;
      if (n >= 3 && startsWith(line, "CALCUL_") && endsWith(line, ')') && !contains(line, "::") &&
          contains(line, "(") && readCalculFunction(line))
        return true;
      if (n > 2 && startsWithIdentifier && endsWith(line, ')') && contains(line, "(") && contains(line, "::"))
        return readMethodDefinition(line);
      if (n > 8 && startsWith(line, "#define")) {
        readMacro(line);
        return true;
      }
    }
    if (line == "/**") openComment(&file_);
    return true;
  }

  htSymbol* classNamed(Line name) { return name.empty() ? nullptr : project_.findOrAddClass(std::string(name), file_); }
  htSymbol* macroNamed(Line name) {
    return name.empty() ? nullptr : project_.findOrAddMacro(std::string(name), file_, htKind::Documentation);
  }
  htSymbol* functionNamed(Line name) {
    return name.empty() ? nullptr : project_.findOrAddFunction(std::string(name), file_, htKind::Documentation);
  }

  // "/** NAME brief": the brief is what follows the name and the non-identifier characters after it.
  bool openHeader(Line line, size_t namePos, htSymbol* entry) {
    if (entry) {
      size_t briefPos = skipNonIdentifier(line, namePos + identifierAt(line, namePos).size());
      entry->brief = std::string(line.substr(briefPos));
    }
    openComment(entry);
    return true;
  }

  bool openMethodHeader(Line line) {
    size_t colons = line.find("::", 4);
    if (!htmlCheck(colons != npos, "dp!=NULL")) return false;
    Line className = trimBlanks(line.substr(4, colons - 4));
    Line method = identifierAt(line, colons + 2);
    if (className.empty() || method.empty()) {
      openComment(nullptr);
      return true;
    }
    htClass* owner = project_.findOrAddClass(std::string(className), file_);
    openComment(owner->findOrAddMethod(std::string(method), htKind::Documentation, project_.nextSerial()));
    return true;
  }

  void openComment(htSymbol* entry) {
    target_ = entry;
    state_ = State::Comment;
  }

  void readComment(Line line) {
    if (line.size() > 1 && contains(line, "*/")) {
      state_ = State::Idle;
      return;
    }
    if (!target_ || startsWith(line, "//")) return;
    if (endsWith(line, '~')) {
      std::string marked(line.substr(0, line.size() - 1));
      marked += "\x03\n";
      target_->documentation += marked.c_str();
    } else {
      appendLine(target_->documentation, line);
    }
  }

  // A line naming "class" or "CLASS" (the later of the two last occurrences) as a whole word.
  bool readClassLine(Line line) {
    size_t lower = line.rfind("class");
    size_t upper = line.rfind("CLASS");
    if (lower == npos && upper == npos) return false;
    size_t keyword = lower == npos ? upper : (upper == npos ? lower : std::max(lower, upper));
    if (!htmlCheck(keyword != npos, "cla!=NULL")) return false;
    size_t after = keyword + 5;
    if (after < line.size() && isHtIdentifierChar(static_cast<unsigned char>(line[after]))) return false;
    Line name = identifierAt(line, skipNonIdentifier(line, after));
    if (name.empty()) return false;
    target_ = project_.findOrAddClass(std::string(name), file_);
    appendLine(target_->declaration, line);
    state_ = State::ClassBody;
    return true;
  }

  bool readCalculFunction(Line line) {
    size_t paren = line.find('(');
    if (!htmlCheck(paren != npos, "par!=NULL")) return false;
    size_t nameEnd = paren;
    while (nameEnd > 0 && isBlank(line[nameEnd - 1])) --nameEnd;
    Line name = identifierBefore(line, nameEnd);
    if (name.empty()) return false;
    appendLine(project_.findOrAddFunction(std::string(name), file_, htKind::Declaration)->declaration, line);
    return true;
  }

  // "Class::method(...)": a line with a qualified type but no call after the
  // qualifier (void f(NS::Type &x)) is a free function, not a definition.
  bool readMethodDefinition(Line line) {
    size_t colons = line.find("::");
    if (!htmlCheck(colons != npos, "dp!=NULL")) return false;
    Line className = identifierBefore(line, colons);
    size_t paren = line.find('(', colons + 2);
    if (className.empty() || paren == npos) return true;
    Line method = trimBlanks(line.substr(colons + 2, paren - colons - 2));
    if (method.empty()) return true;
    htClass* owner = project_.findOrAddClass(std::string(className), file_);
    htSymbol* entry = owner->findOrAddMethod(std::string(method), htKind::Declaration, project_.nextSerial());
    std::string unqualified(line.substr(0, colons - className.size()));
    unqualified += line.substr(colons + 2);
    appendLine(entry->declaration, unqualified);
    return true;
  }

  void readMacro(Line line) {
    if (isHtIdentifierChar(static_cast<unsigned char>(line[7]))) return;
    size_t namePos = 7;
    while (namePos < line.size() && isBlank(line[namePos])) ++namePos;
    Line name = identifierAt(line, namePos);
    // A bare include guard defines nothing worth a page.
    if (name.empty() || trimBlanks(line.substr(namePos + name.size())).empty()) return;
    target_ = project_.findOrAddMacro(std::string(name), file_, htKind::Declaration);
    appendLine(target_->declaration, line);
    if (endsWith(line, '\\')) state_ = State::MacroContinuation;
  }

  htProjet& project_;
  htFile& file_;
  State state_ = State::Idle;
  bool inPlainComment_ = false;
  htSymbol* target_ = nullptr;
};

}  // namespace

bool readHtSource(htProjet& project, htFile& file, std::string_view text) {
  SourceReader reader(project, file);
  return forEachLine(text, [&reader](Line line) { return reader.readLine(line); });
}
