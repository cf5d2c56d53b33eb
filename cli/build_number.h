// The build counter that kesto make raises when it stamps versions, kept in the
// settings between runs (the add-on keeps it for the life of the IDE).
#pragma once

#include <cstdint>

int32_t storedBuildNumber();
void storeBuildNumber(int32_t number);
