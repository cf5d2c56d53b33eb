// The options that belong to one project, kept inside the project by the host.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Raw option storage of a project, addressed by name. Integers are stored as 4
// little-endian bytes; texts as a marker character, the text and a zero byte.
class ProjectOptionStore {
 public:
  virtual ~ProjectOptionStore() = default;
  // False when the project has no such option.
  virtual bool get(const std::string& name, std::string* bytes) = 0;
  // Sets and commits at once.
  virtual bool set(const std::string& name, const std::string& bytes) = 0;
};

struct DeliveryGroupOption {
  std::string type;       // project node type
  std::string directory;  // delivery directory
  int32_t active = 1;     // Kesto_ODR_ACT_%d: the group's files are delivered
};

// Every per-project option with its default when absent.
struct ProjectOptions {
  int32_t hierarchical = 0;      // Kesto_HIERARCH (default: "TopBar"/"Hierarchical")
  int32_t hideWithView = 0;      // Kesto_HIDEWITHVIEW
  int32_t generateWindows = 0;   // Kesto_EWindows
  int32_t generateRc = 0;        // Kesto_GenRC
  int32_t htmlEnabled = 1;       // Kesto_HTMLEN
  int32_t htmlAuto = 0;          // Kesto_HTMLAU
  std::string htmlFilters = "*.cpp;*.h";  // Kesto_HTMLFI
  int32_t withDelivery = 1;      // Kesto_WITHDELIVERY
  int32_t deliveryGroupCount = 0;  // Kesto_NB_ODR as stored
  std::vector<DeliveryGroupOption> deliveryGroups;  // the non-empty entries, in index order
  std::string groupwareServer;   // KestoGroupwareServer
  int32_t mailCount = 0;         // Kesto_NB_MAIL as stored
  std::vector<std::string> mailRecipients;  // the non-empty entries, in index order
};

// Reads in the order of project opening; absent or malformed values keep the
// defaults. hierarchicalDefault is the registry's "TopBar"/"Hierarchical".
ProjectOptions readProjectOptions(ProjectOptionStore& store, int32_t hierarchicalDefault);

// Writes every option in the order of "Save options". Returns false when a write failed.
bool writeProjectOptions(ProjectOptionStore& store, const ProjectOptions& options);

// Encodings of the store.
std::string encodeIntegerOption(int32_t value);
std::string encodeTextOption(char marker, const std::string& text);
// An integer is accepted only with exactly 4 bytes.
bool decodeIntegerOption(const std::string& bytes, int32_t* value);
// A text is accepted when non-empty; the marker is skipped and the text ends at its zero.
bool decodeTextOption(const std::string& bytes, std::string* text);

// Description of one option, for listings and for setting one by name.
struct ProjectOptionInfo {
  const char* name;  // a printf pattern with %d for indexed options
  bool isInteger;
  char marker;       // texts only
};
// The options of the table in their documented order.
const std::vector<ProjectOptionInfo>& projectOptionTable();
// The entry whose name (indexed names included) matches; null when unknown.
const ProjectOptionInfo* findProjectOption(const std::string& name);
