// The file form of a search hit.
#include "navigation/quick_resu.h"

#include "foundation/binary_io.h"

int QuickResu::fWrite(ByteStream& file) { return writeI32(file, line_) && file_.fWrite(file) && text_.fWrite(file) ? 1 : 0; }

int QuickResu::fRead(ByteStream& file) { return readI32(file, &line_) && file_.fRead(file) && text_.fRead(file) ? 1 : 0; }
