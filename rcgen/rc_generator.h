// The resource class generator's settings and its run at the start of a Make:
// class files for the project directory and each immediate subdirectory, then
// the version stamping.
#pragma once

#include <cstdint>
#include <string>

#include "rcgen/rc_run_report.h"

class RcGenerator {
 public:
  int32_t windowsGeneration = 0;  // Kesto_EWindows: class files when non-zero
  int32_t versionGeneration = 0;  // Kesto_GenRC: version stamping when non-zero
  int32_t buildNumber = 0;        // raised by each stamping run; never saved

  // Regenerates the out-of-date units (each immediate subdirectory in
  // enumeration order, then the project directory itself) and stamps the
  // version files, each step only when its flag is set.
  void run(const std::string& projectDirectory, RcRunReport* report);
};
