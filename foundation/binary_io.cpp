// Byte-order independent encoding of the binary record fields.
#include "foundation/binary_io.h"

#include <cstring>

size_t ByteStream::readSome(void* out, size_t size) {
  size_t n = size < remaining() ? size : remaining();
  std::memcpy(out, bytes_.data() + position_, n);
  position_ += n;
  return n;
}

namespace {

bool writeLittleEndian(ByteStream& file, uint32_t value, int bytes) {
  unsigned char buffer[4];
  for (int i = 0; i < bytes; ++i) buffer[i] = static_cast<unsigned char>(value >> (8 * i));
  file.write(buffer, static_cast<size_t>(bytes));
  return true;
}

bool readLittleEndian(ByteStream& file, uint32_t* value, int bytes) {
  unsigned char buffer[4];
  if (!file.read(buffer, static_cast<size_t>(bytes))) return false;
  uint32_t result = 0;
  for (int i = 0; i < bytes; ++i) result |= static_cast<uint32_t>(buffer[i]) << (8 * i);
  *value = result;
  return true;
}

}  // namespace

bool writeU16(ByteStream& file, uint16_t value) { return writeLittleEndian(file, value, 2); }
bool writeU32(ByteStream& file, uint32_t value) { return writeLittleEndian(file, value, 4); }
bool writeI32(ByteStream& file, int32_t value) { return writeLittleEndian(file, static_cast<uint32_t>(value), 4); }

bool readU16(ByteStream& file, uint16_t* value) {
  uint32_t wide = 0;
  if (!readLittleEndian(file, &wide, 2)) return false;
  *value = static_cast<uint16_t>(wide);
  return true;
}

bool readU32(ByteStream& file, uint32_t* value) { return readLittleEndian(file, value, 4); }

bool readI32(ByteStream& file, int32_t* value) {
  uint32_t raw = 0;
  if (!readLittleEndian(file, &raw, 4)) return false;
  *value = static_cast<int32_t>(raw);
  return true;
}
