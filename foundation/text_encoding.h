// Texts saved as UTF-16 with a byte-order mark (resource scripts, sources) are
// read as UTF-8 and written back in their own encoding, so that line-oriented
// readers apply to them as to any 8-bit text.
#pragma once

#include <string>
#include <string_view>

enum class TextEncoding { Bytes, Utf16Le, Utf16Be };

// The text of bytes: UTF-16 with a byte-order mark is decoded into *decoded as
// UTF-8 (the mark dropped, broken code units as U+FFFD) and the view is of
// *decoded; any other bytes are viewed as they are, without a copy. The view
// lives as long as both strings are unchanged.
std::string_view textOf(const std::string& bytes, std::string* decoded, TextEncoding* encoding = nullptr);

// Bytes to store for a text read with textOf: UTF-16 gets its mark back and
// CR LF line ends, as the tools that write UTF-16 scripts use them; other text
// is returned unchanged (text-mode writing adds the platform's line ends).
std::string encodeText(std::string_view text, TextEncoding encoding);

// True when the first line of text ends with CR LF: the line-end style that a
// rewrite of a user's file keeps.
bool usesCrLfLines(std::string_view text);

// Text with every lone "\n" made CR LF; CR LF pairs stay as they are.
std::string withCrLfLines(std::string_view text);
