// Little-endian fixed-width fields on a run-time library stream, whatever the host.
#pragma once

#include <cstdint>
#include <cstdio>

// Each returns true only when every byte was transferred.
bool writeU16(FILE* file, uint16_t value);
bool writeI32(FILE* file, int32_t value);
bool writeU32(FILE* file, uint32_t value);
bool readU16(FILE* file, uint16_t* value);
bool readI32(FILE* file, int32_t* value);
bool readU32(FILE* file, uint32_t* value);
