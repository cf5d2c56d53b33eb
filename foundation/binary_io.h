// Binary files in memory, and little-endian fixed-width fields on them,
// whatever the host. A record file is read whole into a ByteStream and written
// whole from one through the OS layer, so that it is replaced in one step.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

class ByteStream {
 public:
  ByteStream() = default;
  explicit ByteStream(std::string bytes) : bytes_(std::move(bytes)) {}

  // Up to size bytes from the read position; how many were read.
  size_t readSome(void* out, size_t size);
  // All of size bytes, or false.
  bool read(void* out, size_t size) { return readSome(out, size) == size; }
  void write(const void* data, size_t size) { bytes_.append(static_cast<const char*>(data), size); }

  size_t remaining() const { return bytes_.size() - position_; }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
  size_t position_ = 0;
};

// Each returns true only when every byte was transferred.
bool writeU16(ByteStream& file, uint16_t value);
bool writeI32(ByteStream& file, int32_t value);
bool writeU32(ByteStream& file, uint32_t value);
bool readU16(ByteStream& file, uint16_t* value);
bool readI32(ByteStream& file, int32_t* value);
bool readU32(ByteStream& file, uint32_t* value);
