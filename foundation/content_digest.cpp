// Two independent multiply-and-shift lanes over the bytes, eight at a time.
#include "foundation/content_digest.h"

#include <cstring>

void ContentDigest::mix(uint64_t word) {
  a_ = (a_ ^ word) * 0x100000001B3ULL;
  a_ ^= a_ >> 29;
  b_ = (b_ + word) * 0x9E3779B97F4A7C15ULL;
  b_ ^= b_ >> 32;
}

void ContentDigest::add(std::string_view bytes) {
  add(static_cast<uint64_t>(bytes.size()));
  size_t pos = 0;
  for (; pos + 8 <= bytes.size(); pos += 8) {
    uint64_t word;
    std::memcpy(&word, bytes.data() + pos, 8);
    mix(word);
  }
  uint64_t tail = 0;
  std::memcpy(&tail, bytes.data() + pos, bytes.size() - pos);
  mix(tail);
}

void ContentDigest::add(uint64_t number) { mix(number ^ 0xFF51AFD7ED558CCDULL); }

std::string ContentDigest::hex() const {
  static const char kDigits[] = "0123456789abcdef";
  std::string out;
  for (uint64_t lane : {a_, b_})
    for (int shift = 60; shift >= 0; shift -= 4) out += kDigits[(lane >> shift) & 0xF];
  return out;
}
