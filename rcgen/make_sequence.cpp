// The portable actions around a Make.
#include "rcgen/make_sequence.h"


void MakeSequence::setOptions(const ProjectOptions& options) {
  generator.windowsGeneration = options.generateWindows;
  generator.versionGeneration = options.generateRc;
  htmlAutomatic_ = options.htmlEnabled != 0 && options.htmlAuto != 0;
  htmlFilters_ = options.htmlFilters;
}

void MakeSequence::started(Host& host) {
  const std::string projectFile = host.projectFile();
  if (projectFile.empty()) return;
  RcRunReport report;
  generator.run(projectDirectoryOf(projectFile), &report);
  for (const std::string& error : report.errors) host.showStatus(error);
}

void MakeSequence::ended(Host& host, bool succeeded, const StartHtmlGeneration& startHtml) {
  const std::string projectFile = host.projectFile();
  if (succeeded && htmlAutomatic_ && !projectFile.empty()) startHtml(projectDirectoryOf(projectFile), htmlFilters_);
}
