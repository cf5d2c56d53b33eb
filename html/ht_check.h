// Consistency checks of the documentation generator: a failed one shows the
// condition and the source, and the generation stops.
#pragma once

// True when ok. Otherwise shows "Assertion failed: CONDITION, file html" captioned
// "Erreur" with the stop icon, and returns false so that the caller stops.
bool htmlCheck(bool ok, const char* condition);
