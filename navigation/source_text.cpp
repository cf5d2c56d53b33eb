// Editor text first, so that what the user sees is what is scanned.
#include "navigation/source_text.h"

#include "foundation/os.h"
#include "ide/host.h"

void readSourceText(Host& host, const std::string& path, std::string* text) {
  if (host.editorText(path, text)) return;
  if (!os().readFile(path, text, nullptr)) text->clear();
}
