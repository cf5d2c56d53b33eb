// UTF-16 texts to UTF-8 and back.
#include "foundation/text_encoding.h"

#include <cstdint>

namespace {

constexpr uint32_t kReplacement = 0xFFFD;

void appendUtf8(uint32_t c, std::string* out) {
  if (c < 0x80) {
    *out += static_cast<char>(c);
  } else if (c < 0x800) {
    *out += static_cast<char>(0xC0 | (c >> 6));
    *out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    *out += static_cast<char>(0xE0 | (c >> 12));
    *out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    *out += static_cast<char>(0xF0 | (c >> 18));
    *out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    *out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// The next code point of UTF-8 text; a malformed sequence gives U+FFFD for its first byte.
uint32_t nextUtf8(std::string_view text, size_t* at) {
  auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char lead = byte(*at);
  ++*at;
  if (lead < 0x80) return lead;
  int extra = (lead >> 5) == 6 ? 1 : (lead >> 4) == 14 ? 2 : (lead >> 3) == 30 ? 3 : 0;
  if (extra == 0 || *at + extra > text.size()) return kReplacement;
  uint32_t c = lead & (0x3F >> extra);
  for (int i = 0; i < extra; ++i) {
    if ((byte(*at + i) & 0xC0) != 0x80) return kReplacement;
    c = (c << 6) | (byte(*at + i) & 0x3F);
  }
  *at += static_cast<size_t>(extra);
  return c > 0x10FFFF || (c >= 0xD800 && c < 0xE000) ? kReplacement : c;
}

void appendUnit(uint32_t unit, TextEncoding encoding, std::string* out) {
  char low = static_cast<char>(unit & 0xFF);
  char high = static_cast<char>(unit >> 8);
  if (encoding == TextEncoding::Utf16Le) {
    *out += low;
    *out += high;
  } else {
    *out += high;
    *out += low;
  }
}

}  // namespace

std::string_view textOf(const std::string& bytes, std::string* text, TextEncoding* encodingFound) {
  TextEncoding encoding = TextEncoding::Bytes;
  if (bytes.size() >= 2 && bytes[0] == '\xFF' && bytes[1] == '\xFE') encoding = TextEncoding::Utf16Le;
  if (bytes.size() >= 2 && bytes[0] == '\xFE' && bytes[1] == '\xFF') encoding = TextEncoding::Utf16Be;
  if (encodingFound) *encodingFound = encoding;
  if (encoding == TextEncoding::Bytes) return bytes;
  auto unitAt = [&](size_t i) -> uint32_t {
    uint32_t first = static_cast<unsigned char>(bytes[i]);
    uint32_t second = static_cast<unsigned char>(bytes[i + 1]);
    return encoding == TextEncoding::Utf16Le ? first | (second << 8) : (first << 8) | second;
  };
  text->clear();
  text->reserve(bytes.size() / 2);  // the common case, mostly ASCII
  for (size_t i = 2; i + 1 < bytes.size(); i += 2) {
    uint32_t unit = unitAt(i);
    if (unit >= 0xD800 && unit < 0xDC00 && i + 3 < bytes.size()) {
      uint32_t next = unitAt(i + 2);
      if (next >= 0xDC00 && next < 0xE000) {
        appendUtf8(0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00), text);
        i += 2;
        continue;
      }
    }
    appendUtf8(unit >= 0xD800 && unit < 0xE000 ? kReplacement : unit, text);
  }
  if (bytes.size() % 2 != 0) appendUtf8(kReplacement, text);
  return *text;
}

std::string encodeText(std::string_view text, TextEncoding encoding) {
  if (encoding == TextEncoding::Bytes) return std::string(text);
  std::string out;
  out.reserve(text.size() * 2 + 2);
  appendUnit(0xFEFF, encoding, &out);
  for (size_t at = 0; at < text.size();) {
    uint32_t c = nextUtf8(text, &at);
    if (c == '\n') appendUnit('\r', encoding, &out);
    if (c < 0x10000) {
      appendUnit(c, encoding, &out);
    } else {
      appendUnit(0xD800 + ((c - 0x10000) >> 10), encoding, &out);
      appendUnit(0xDC00 + ((c - 0x10000) & 0x3FF), encoding, &out);
    }
  }
  return out;
}

bool usesCrLfLines(std::string_view text) {
  size_t end = text.find('\n');
  return end != std::string_view::npos && end > 0 && text[end - 1] == '\r';
}

std::string withCrLfLines(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 16);
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) out += '\r';
    out += text[i];
  }
  return out;
}
