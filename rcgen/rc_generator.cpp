// The generator's run at the start of a Make.
#include "rcgen/rc_generator.h"

#include <vector>

#include "foundation/os.h"
#include "rcgen/rc_generation_unit.h"
#include "rcgen/version_stamping.h"

namespace {

void generateIfOutOfDate(const RcUnit& unit, RcRunReport* report) {
  if (rcUnitIsOutOfDate(unit)) regenerateRcUnit(unit, report);
}

}  // namespace

void RcGenerator::run(const std::string& projectDirectory, RcRunReport* report) {
  if (windowsGeneration) {
    std::vector<DirectoryEntry> entries;
    std::string err;
    if (!os().listDirectory(projectDirectory, &entries, &err)) report->errors.push_back(err);
    for (const DirectoryEntry& entry : entries)
      if (entry.attributes.isDirectory) generateIfOutOfDate({joinPath(projectDirectory, entry.name), entry.name}, report);
    generateIfOutOfDate({projectDirectory, ""}, report);
  }
  if (versionGeneration) stampVersionTree(projectDirectory, &buildNumber, report);
}
