// Editor text first, so that what the user sees is what is scanned.
#include "navigation/source_text.h"

#include "foundation/os.h"
#include "foundation/text_encoding.h"
#include "project/host.h"

bool readSourceText(Host& host, const std::string& path, std::string* text, std::string* err) {
  if (host.editorText(path, text)) return true;
  if (!os().readFile(path, text, err)) {
    text->clear();
    return false;
  }
  // Sources saved as UTF-16 are rare: only they pay for a second buffer.
  std::string decoded;
  TextEncoding encoding = TextEncoding::Bytes;
  textOf(*text, &decoded, &encoding);
  if (encoding != TextEncoding::Bytes) text->swap(decoded);
  return true;
}
