// The base versions of the persistable operations: each reports the missing override.
#include "foundation/basic.h"

#include "foundation/alert.h"

namespace {

void reportPureCall(const char* what) {
  alert(what, "Erreur", kAlertOk | kAlertIconHand);
}

}  // namespace

int Basic::fWrite(ByteStream&) {
  reportPureCall("Appel de Basic::fWrite virtuelle pure !");
  return 0;
}

int Basic::fRead(ByteStream&) {
  reportPureCall("Appel de Basic::fRead virtuelle pure !");
  return 0;
}

Basic::operator char*() {
  reportPureCall("Appel de Basic::char * virtuelle pure !");
  return nullptr;
}

Basic::operator long int() {
  reportPureCall("Appel de Basic::long int virtuelle pure !");
  return 0;
}

Basic::~Basic() = default;
