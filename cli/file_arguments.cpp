// Checks of the paths a command is given, before the command trusts them.
#include "cli/file_arguments.h"

#include <vector>

#include "cli/cli_session.h"
#include "foundation/os.h"

namespace {

// The OS layer says "CALL PATH: REASON"; the user is told the reason alone.
std::string reasonIn(const std::string& err, const std::string& path) {
  size_t at = err.find(path + ": ");
  return at == std::string::npos ? err : err.substr(at + path.size() + 2);
}

bool refuse(CliSession& session, const std::string& path, const std::string& reason) {
  reportError("cannot read " + path + ": " + reason);
  session.exitStatus = kExitUsage;
  return false;
}

}  // namespace

bool readableFileArgument(CliSession& session, const std::string& path) {
  FileAttributes attributes;
  std::string err;
  if (!os().attributes(path, &attributes, &err)) return refuse(session, path, reasonIn(err, path));
  if (attributes.isDirectory) return refuse(session, path, "is a directory");
  if (!os().openFile(path, &err)) return refuse(session, path, reasonIn(err, path));
  return true;
}

bool readableDirectoryArgument(CliSession& session, const std::string& path) {
  FileAttributes attributes;
  std::string err;
  if (!os().attributes(path, &attributes, &err)) return refuse(session, path, reasonIn(err, path));
  if (!attributes.isDirectory) return refuse(session, path, "not a directory");
  std::vector<DirectoryEntry> entries;
  if (!os().listDirectory(path, &entries, &err)) return refuse(session, path, reasonIn(err, path));
  return true;
}
