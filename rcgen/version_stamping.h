// Version stamping: each "VERSION.RC" of a tree gets the build number of the
// run in its FILEVERSION statement and its "FileVersion" value, and its first
// text is kept as "VERSION.BAK" beside it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rcgen/rc_run_report.h"

// The stamped text of one version script. The version starts as 1, 0, 0 and
// *buildNumber; a FILEVERSION line whose build is not below the counter moves
// the counter past it. Lines that match neither rule are copied as they are.
std::string stampVersionText(std::string_view text, int32_t* buildNumber);

// One stamping run: adds 1 to *buildNumber, then stamps every directory of the
// tree below `directory` before the directory itself. Stamped files go to
// report->written, failures to report->errors; the run goes on after a failure.
void stampVersionTree(const std::string& directory, int32_t* buildNumber, RcRunReport* report);
