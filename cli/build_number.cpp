// The counter under "Make"/"BuildNumber".
#include "cli/build_number.h"

#include "foundation/settings.h"

int32_t storedBuildNumber() { return settings().readInteger("Make", "BuildNumber", 0); }

void storeBuildNumber(int32_t number) { settings().writeInteger("Make", "BuildNumber", number); }
