// Generation units of the resource class generator.
#include "rcgen/rc_generation_unit.h"

#include <algorithm>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "rcgen/rc_class_emitter.h"
#include "rcgen/rc_script_reader.h"

namespace {

std::vector<DirectoryEntry> scriptEntries(const std::string& directory) {
  std::vector<DirectoryEntry> entries;
  std::vector<DirectoryEntry> scripts;
  if (!os().listDirectory(directory, &entries, nullptr)) return scripts;
  for (const DirectoryEntry& entry : entries)
    if (!entry.attributes.isDirectory && entry.name[0] != '.' && matchesMask(entry.name, "*.rc"))
      scripts.push_back(entry);
  return scripts;
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

std::vector<std::string> rcScriptsOf(const std::string& directory) {
  std::vector<std::string> paths;
  for (const DirectoryEntry& entry : scriptEntries(directory)) paths.push_back(joinPath(directory, entry.name));
  return paths;
}

bool rcUnitIsOutOfDate(const RcUnit& unit) {
  FileAttributes header;
  FileAttributes implementation;
  if (!os().attributes(rcHeaderPath(unit), &header, nullptr)) return true;
  if (!os().attributes(rcImplementationPath(unit), &implementation, nullptr)) return true;
  int64_t older = std::min(header.modified, implementation.modified);
  for (const DirectoryEntry& script : scriptEntries(unit.directory))
    if (script.attributes.modified > older) return true;
  return false;
}

RcUnitText generateRcUnit(const RcUnit& unit) {
  RcUnitText text;
  emitUnitOpening(unit.name, &text);
  for (const std::string& path : rcScriptsOf(unit.directory)) {
    std::string script;
    if (os().readFile(path, &script, nullptr)) readRcScript(script, &text);
  }
  emitUnitClosing(unit.name, &text);
  return text;
}

bool regenerateRcUnit(const RcUnit& unit, RcRunReport* report) {
  RcUnitText text = generateRcUnit(unit);
  bool headerWritten = writeOutput(rcHeaderPath(unit), text.header, report);
  bool implementationWritten = writeOutput(rcImplementationPath(unit), text.implementation, report);
  return headerWritten && implementationWritten;
}
