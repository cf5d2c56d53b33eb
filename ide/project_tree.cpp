// Lookups in the project tree.
#include "ide/project_tree.h"

#include <cctype>

#include "foundation/os.h"

namespace {

bool sameFileName(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::toupper(static_cast<unsigned char>(a[i])) != std::toupper(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

std::string lastComponent(const std::string& path) {
  size_t cut = path.find_last_of("/\\");
  return cut == std::string::npos ? path : path.substr(cut + 1);
}

}  // namespace

const ProjectNode* findNodeHoldingFile(const ProjectNode& root, const std::string& file) {
  if (!root.name.empty() && sameFileName(lastComponent(root.name), lastComponent(file))) return &root;
  for (const ProjectNode& child : root.nodes)
    if (const ProjectNode* found = findNodeHoldingFile(child, file)) return found;
  return nullptr;
}

const ProjectNode* findNodeNamed(const ProjectNode& root, const std::string& name) {
  if (root.name == name) return &root;
  for (const ProjectNode& child : root.nodes)
    if (const ProjectNode* found = findNodeNamed(child, name)) return found;
  return nullptr;
}

bool nodeOption(const ProjectNode& node, NodeOptionKind kind, std::string* value) {
  const std::string& option = kind == NodeOptionKind::IncludePath ? node.includePath : node.sourcePath;
  if (option.empty()) return false;
  *value = option;
  return true;
}
