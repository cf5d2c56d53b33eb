// Generation units: a directory whose resource scripts give the class files
// rc<unit>.h and rc<unit>.cpp; when a unit is out of date, and its regeneration.
#pragma once

#include <string>
#include <vector>

#include "rcgen/rc_run_report.h"
#include "rcgen/rc_script_model.h"

struct RcUnit {
  std::string directory;
  std::string name;  // the subdirectory's own name; "" for the project directory
};

std::string rcHeaderPath(const RcUnit& unit);
std::string rcImplementationPath(const RcUnit& unit);

// The "*.rc" files of a directory (matched as Windows matches, case-insensitively),
// True when an output file is missing, or a script's status cannot be read, or
// a script is newer than the older output file.
bool rcUnitIsOutOfDate(const RcUnit& unit);

// The two texts of the unit from its scripts as they are now. A script that
// cannot be read is skipped and named in *skipped (may be null). Fails only
// when the directory cannot be listed.
bool generateRcUnit(const RcUnit& unit, RcUnitText* text, std::vector<std::string>* skipped, std::string* err);

// Rewrites both files whole. Written files are added to report->written and
// failures, skipped scripts included, to report->errors; returns false when a
// file could not be written.
bool regenerateRcUnit(const RcUnit& unit, RcRunReport* report);
