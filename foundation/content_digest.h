// A 128-bit digest of bytes, to tell whether inputs changed since a result was made from them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Not cryptographic: it tells an accidental change, not one made to collide.
// Each part added is framed by its length, so "ab" + "c" differs from "a" + "bc".
class ContentDigest {
 public:
  void add(std::string_view bytes);
  void add(uint64_t number);
  // 32 lowercase hexadecimal digits.
  std::string hex() const;

 private:
  void mix(uint64_t word);

  uint64_t a_ = 0x9E3779B97F4A7C15ULL;
  uint64_t b_ = 0xC2B2AE3D27D4EB4FULL;
};
