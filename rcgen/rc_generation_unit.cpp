// Generation units of the resource class generator.
#include "rcgen/rc_generation_unit.h"

#include <algorithm>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "rcgen/rc_class_emitter.h"
#include "rcgen/rc_script_reader.h"

namespace {

// The "*.rc" files of a directory, matched as Windows matches them, in
// enumeration order; names beginning with "." are left out.
bool listScripts(const std::string& directory, std::vector<DirectoryEntry>* scripts, std::string* err) {
  std::vector<DirectoryEntry> entries;
  scripts->clear();
  if (!os().listDirectory(directory, &entries, err)) return false;
  for (const DirectoryEntry& entry : entries)
    if (!entry.attributes.isDirectory && entry.name[0] != '.' && matchesMask(entry.name, "*.rc"))
      scripts->push_back(entry);
  return true;
}

bool writeOutput(const std::string& path, const std::string& text, RcRunReport* report) {
  std::string err;
  if (!os().writeTextFileAtomic(path, text, &err)) {
    report->errors.push_back(err);
    return false;
  }
  report->written.push_back(path);
  return true;
}

}  // namespace

std::string rcHeaderPath(const RcUnit& unit) { return joinPath(unit.directory, "rc" + unit.name + ".h"); }

std::string rcImplementationPath(const RcUnit& unit) { return joinPath(unit.directory, "rc" + unit.name + ".cpp"); }

bool rcUnitIsOutOfDate(const RcUnit& unit) {
  FileAttributes header;
  FileAttributes implementation;
  if (!os().attributes(rcHeaderPath(unit), &header, nullptr)) return true;
  if (!os().attributes(rcImplementationPath(unit), &implementation, nullptr)) return true;
  int64_t older = std::min(header.modified, implementation.modified);
  std::vector<DirectoryEntry> scripts;
  if (!listScripts(unit.directory, &scripts, nullptr)) return true;
  for (const DirectoryEntry& script : scripts)
    if (script.attributes.modified > older) return true;
  return false;
}

bool generateRcUnit(const RcUnit& unit, RcUnitText* text, std::vector<std::string>* skipped, std::string* err) {
  std::vector<DirectoryEntry> scripts;
  if (!listScripts(unit.directory, &scripts, err)) return false;
  emitUnitOpening(unit.name, text);
  for (const DirectoryEntry& entry : scripts) {
    std::string script;
    std::string readError;
    if (os().readFile(joinPath(unit.directory, entry.name), &script, &readError)) readRcScript(script, text);
    else if (skipped) skipped->push_back(readError);
  }
  emitUnitClosing(unit.name, text);
  return true;
}

bool regenerateRcUnit(const RcUnit& unit, RcRunReport* report) {
  RcUnitText text;
  std::string err;
  // A directory that cannot be listed keeps its files rather than lose its classes.
  if (!generateRcUnit(unit, &text, &report->errors, &err)) {
    report->errors.push_back(err);
    return false;
  }
  bool headerWritten = writeOutput(rcHeaderPath(unit), text.header, report);
  bool implementationWritten = writeOutput(rcImplementationPath(unit), text.implementation, report);
  return headerWritten && implementationWritten;
}
