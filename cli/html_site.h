// Writing the documentation site from any command, with a progress bar on a terminal.
#pragma once

#include <string>

class CliSession;

// Refused while another generation runs. Pages that could not be written are
// reported and set the exit status; false when no site was written.
bool writeHtmlSite(CliSession& session, const std::string& directory, const std::string& filters,
                   const std::string& name);
