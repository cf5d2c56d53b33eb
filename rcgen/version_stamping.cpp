// Version stamping of the "VERSION.RC" files of a project tree.
#include "rcgen/version_stamping.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "foundation/text_encoding.h"
#include "rcgen/rc_line_fields.h"

namespace {

const char kFileVersionValue[] = "   VALUE \"FileVersion\", \"";

struct Version {
  int32_t number[4];  // major, minor, release, build
};

// Reads a decimal integer as "%d" does: blanks skipped, an optional sign, at
// least one digit. Values beyond 32 bits stop at the nearest bound.
bool scanInteger(std::string_view text, size_t* at, int32_t* value) {
  size_t i = *at;
  while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) negative = text[i++] == '-';
  if (i >= text.size() || text[i] < '0' || text[i] > '9') return false;
  int64_t magnitude = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    magnitude = std::min<int64_t>(magnitude * 10 + (text[i] - '0'), int64_t{INT32_MAX} + 1);
  int64_t signedValue = negative ? -magnitude : std::min<int64_t>(magnitude, INT32_MAX);
  *value = static_cast<int32_t>(signedValue);
  *at = i;
  return true;
}

// "%d,%d,%d,%d": fields after the first that fails keep their values.
void scanVersion(std::string_view text, Version* version) {
  size_t at = 0;
  for (int field = 0; field < 4; ++field) {
    if (field > 0) {
      if (at >= text.size() || text[at] != ',') return;
      ++at;
    }
    if (!scanInteger(text, &at, &version->number[field])) return;
  }
}

std::string format(const char* pattern, const Version& v) {
  char text[160];
  std::snprintf(text, sizeof text, pattern, v.number[0], v.number[1], v.number[2], v.number[3]);
  return text;
}

// The entry of `entries` that Windows would open under `name`, or "".
std::string findName(const std::vector<DirectoryEntry>& entries, const char* name) {
  for (const DirectoryEntry& entry : entries)
    if (!entry.attributes.isDirectory && matchesMask(entry.name, name)) return entry.name;
  return "";
}

bool writeStamped(const std::string& path, const std::string& bytes, int32_t* buildNumber, std::string* err) {
  std::string decoded;
  TextEncoding encoding = TextEncoding::Bytes;
  std::string_view text = textOf(bytes, &decoded, &encoding);
  std::string stamped = stampVersionText(text, buildNumber);
  // A script with CR LF lines keeps them where text mode would write "\n".
  if (encoding == TextEncoding::Bytes && usesCrLfLines(text))
    return os().writeFileAtomic(path, withCrLfLines(stamped), err);
  if (encoding == TextEncoding::Bytes) return os().writeTextFileAtomic(path, stamped, err);
  return os().writeFileAtomic(path, encodeText(stamped, encoding), err);
}

void stampDirectory(const std::string& directory, const std::vector<DirectoryEntry>& entries, int32_t* buildNumber,
                    RcRunReport* report) {
  std::string scriptName = findName(entries, "VERSION.RC");
  if (scriptName.empty()) return;
  std::string script = joinPath(directory, scriptName);
  std::string backupName = findName(entries, "VERSION.BAK");
  // An existing backup is never replaced: it stays the source, so that it
  // always holds the text of the first stamping.
  std::string backup = joinPath(directory, backupName.empty() ? "VERSION.BAK" : backupName);
  if (backupName.empty()) os().renameFile(script, backup, nullptr);

  std::string bytes;
  std::string err;
  if (!os().readFile(backup, &bytes, &err) || !writeStamped(script, bytes, buildNumber, &err)) {
    report->errors.push_back(err);
    return;
  }
  report->written.push_back(script);
}

void visit(const std::string& directory, int32_t* buildNumber, RcRunReport* report) {
  std::vector<DirectoryEntry> entries;
  std::string err;
  if (!os().listDirectory(directory, &entries, &err)) {
    report->errors.push_back(err);
    return;
  }
  for (const DirectoryEntry& entry : entries)
    if (isWalkableDirectory(entry)) visit(joinPath(directory, entry.name), buildNumber, report);
  stampDirectory(directory, entries, buildNumber, report);
}

}  // namespace

std::string stampVersionText(std::string_view text, int32_t* buildNumber) {
  Version version = {{1, 0, 0, *buildNumber}};
  std::string out;
  out.reserve(text.size() + text.size() / 16);  // room for the line ends a lone CR gains
  TextModeLines lines(text, kNoLineLimit);
  std::string_view line;
  while (lines.next(&line)) {
    line = withoutLineEnd(line);
    if (line.size() > 11 && startsWith(line, "FILEVERSION")) {
      scanVersion(line.substr(12), &version);
      if (*buildNumber <= version.number[3]) *buildNumber = version.number[3] == INT32_MAX ? INT32_MAX : version.number[3] + 1;
      version.number[3] = *buildNumber;
      out += format("FILEVERSION %d, %d, %d, %d\n", version);
    } else if (line.size() > 25 && startsWith(line, kFileVersionValue)) {
      out += format("   VALUE \"FileVersion\", \"%d.%d.%d.%d\\000\\000\"\n", version);
    } else {
      out += line;
      out += '\n';
    }
  }
  return out;
}

void stampVersionTree(const std::string& directory, int32_t* buildNumber, RcRunReport* report) {
  if (*buildNumber < INT32_MAX) ++*buildNumber;
  visit(directory, buildNumber, report);
}
