// Resource and version scripts saved as UTF-16 (with a byte-order mark) are
// read as 8-bit text in UTF-8 and written back in their own encoding, so that
// the line-oriented rules apply to them as to any other script.
#pragma once

#include <string>

enum class ScriptEncoding { Bytes, Utf16Le, Utf16Be };

// The script's text: UTF-16 with a byte-order mark is decoded to UTF-8 (the
// mark dropped, broken code units as U+FFFD); any other bytes are kept as they are.
ScriptEncoding decodeScript(const std::string& bytes, std::string* text);

// Bytes to store for a text read with decodeScript: UTF-16 gets its mark back and
// CR LF line ends, as the tools that write UTF-16 scripts use them; other text
// is returned unchanged (text-mode writing adds the platform's line ends).
std::string encodeScript(const std::string& text, ScriptEncoding encoding);
