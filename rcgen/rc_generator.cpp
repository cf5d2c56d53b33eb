// The generator's run at the start of a Make.
#include "rcgen/rc_generator.h"

#include <vector>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "html/ht_generation.h"
#include "rcgen/rc_generation_unit.h"
#include "rcgen/version_stamping.h"

namespace {

// A subdirectory that is a unit: not a link, which could lead out of the
// project or back into it, and not the documentation site, which holds pages.
bool isUnitDirectory(const std::string& projectDirectory, const DirectoryEntry& entry) {
  return isWalkableDirectory(entry) && !matchesMask(entry.name, fileNameOf(htSiteDirectory(projectDirectory)));
}

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
      if (isUnitDirectory(projectDirectory, entry)) generateIfOutOfDate({joinPath(projectDirectory, entry.name), entry.name}, report);
    generateIfOutOfDate({projectDirectory, ""}, report);
  }
  if (versionGeneration) stampVersionTree(projectDirectory, &buildNumber, report);
}
