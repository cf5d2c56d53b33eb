// Files and directories named on the command line: one that cannot be read is
// a usage error, never taken for one that holds nothing.
#pragma once

#include <string>

class CliSession;

// True when path is a regular file that can be opened for reading; otherwise
// reports "cannot read PATH: REASON", sets the usage status and returns false.
bool readableFileArgument(CliSession& session, const std::string& path);

// The same for a directory whose entries can be listed.
bool readableDirectoryArgument(CliSession& session, const std::string& path);
