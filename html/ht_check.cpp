// The box of a failed consistency check.
#include "html/ht_check.h"

#include <string>

#include "foundation/alert.h"

bool htmlCheck(bool ok, const char* condition) {
  if (ok) return true;
  alert(std::string("Assertion failed: ") + condition + ", file html", "Erreur", kAlertOk | kAlertIconHand);
  return false;
}
