// The persistable root of every string and table: binary file form and conversions.
#pragma once

class ByteStream;

// Each base operation is pure in effect: it shows an "Erreur" box naming itself
// and returns 0, so a class that forgets an override is noticed at once.
class Basic {
 public:
  virtual int fWrite(ByteStream& file);
  virtual int fRead(ByteStream& file);
  virtual operator char*();
  virtual operator long int();
  virtual ~Basic();
};
