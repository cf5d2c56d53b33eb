// Selecting the files to deliver: the directory check and the comparison of contents.
#include "delivery/delivery_selection.h"

#include <cstring>
#include <memory>
#include <vector>

#include "foundation/alert.h"
#include "foundation/os.h"

namespace {

// Large blocks: a no-change check reads whole targets, and system calls, not
// bytes, were its cost. Any block size gives the same answer.
constexpr size_t kComparedBlock = 1 << 18;

// Reads up to size bytes, fewer only at the end of the file.
bool readBlock(OsFile& file, char* buffer, size_t size, size_t* got) {
  *got = 0;
  while (*got < size) {
    size_t n = 0;
    if (!file.read(buffer + *got, size - *got, &n, nullptr)) return false;
    if (n == 0) break;
    *got += n;
  }
  return true;
}

bool sameContents(OsFile& a, OsFile& b) {
  static thread_local std::vector<char> left(kComparedBlock);
  static thread_local std::vector<char> right(kComparedBlock);
  for (;;) {
    size_t gotLeft = 0;
    size_t gotRight = 0;
    if (!readBlock(a, left.data(), kComparedBlock, &gotLeft) || !readBlock(b, right.data(), kComparedBlock, &gotRight))
      return false;
    if (gotLeft != gotRight || std::memcmp(left.data(), right.data(), gotLeft) != 0) return false;
    if (gotLeft < kComparedBlock) return true;
  }
}

}  // namespace

bool needsDelivery(const std::string& source, const std::string& directory) {
  FileAttributes sourceInfo;
  if (!os().attributes(source, &sourceInfo, nullptr)) return false;
  const std::string copy = joinPath(directory, fileNameOf(source));
  FileAttributes copyInfo;
  if (!os().attributes(copy, &copyInfo, nullptr) || copyInfo.size != sourceInfo.size) return true;
  std::unique_ptr<OsFile> in = os().openFile(source, nullptr);
  if (!in) return false;
  std::unique_ptr<OsFile> delivered = os().openFile(copy, nullptr);
  return !delivered || !sameContents(*in, *delivered);
}

bool deliveryDirectoryExists(const std::string& projectDirectory, const std::string& directory) {
  return !directory.empty() && os().exists(projectPath(projectDirectory, directory));
}

bool selectDeliveries(Tableau<OneDelRep>& groups, const ProjectNode* root, const std::string& projectDirectory,
                      Tableau<Livrage>* deliveries) {
  deliveries->clear();
  rebuildDeliveryGroups(groups, root);
  const ProjectNode* delivery = findDeliveryNode(root);
  if (!delivery) return true;
  for (int32_t i = 0; i < groups.count(); ++i) {
    const std::string directory = groups[i]->directory.str();
    if (!deliveryDirectoryExists(projectDirectory, directory)) {
      alert("Directory " + directory + " does not exist !\nChange it !", "Kesto AddOn error", kAlertIconHand);
      return false;
    }
  }
  for (const ProjectNode& node : delivery->nodes) {
    const OneDelRep* group = findDeliveryGroup(groups, node.type);
    if (!group || !group->active) continue;
    const std::string source = projectPath(projectDirectory, node.name);
    const std::string directory = projectPath(projectDirectory, group->directory.str());
    if (!needsDelivery(source, directory)) continue;
    Livrage* record = new Livrage;
    record->source = source;
    record->group = group;
    record->directory = directory;
    deliveries->append(record);
  }
  return true;
}
