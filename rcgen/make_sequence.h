// What a Make does to the project beyond the IDE's own windows: the class files
// and version stamps before it, the documentation site after a successful one.
#pragma once

#include <functional>
#include <string>

#include "project/host.h"
#include "project/project_options.h"
#include "rcgen/rc_generator.h"

// Starts a documentation generation of the project directory with the filters;
// the DLL runs it on a worker thread, the command-line host in place.
using StartHtmlGeneration = std::function<void(const std::string& projectDirectory, const std::string& filters)>;

class MakeSequence {
 public:
  RcGenerator generator;  // its build number lives as long as the sequence

  // Takes the project's switches; called when a project opens and when its options change.
  void setOptions(const ProjectOptions& options);

  // Regenerates the out-of-date class files and stamps the version files, as
  // the switches say; each failure goes to the status line. Nothing without a project.
  void started(Host& host);
  // After a successful Make, the documentation site when it is enabled and automatic.
  void ended(Host& host, bool succeeded, const StartHtmlGeneration& startHtml);

 private:
  bool htmlAutomatic_ = false;
  std::string htmlFilters_;
};
