// Lookups in the project tree.
#include "project/project_tree.h"

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

std::string projectDirectoryOf(const std::string& projectFile) {
  std::string directory = directoryOf(projectFile);
  return directory.empty() ? os().currentDirectory() : directory;
}

std::string projectPath(const std::string& projectDirectory, const std::string& name) {
  return isAbsolutePath(name) ? name : joinPath(projectDirectory, name);
}

const ProjectNode* findNodeNamed(const ProjectNode& root, const std::string& name) {
  if (root.name == name) return &root;
  for (const ProjectNode& child : root.nodes)
    if (const ProjectNode* found = findNodeNamed(child, name)) return found;
  return nullptr;
}

const ProjectNode* sameNodeIn(const ProjectNode& from, const ProjectNode& node, const ProjectNode& to) {
  if (&from == &node) return node.name == to.name && node.type == to.type ? &to : nullptr;
  for (size_t i = 0; i < from.nodes.size(); ++i) {
    const ProjectNode& child = from.nodes[i];
    if (&child != &node && !parentOf(child, node)) continue;
    return i < to.nodes.size() ? sameNodeIn(child, node, to.nodes[i]) : nullptr;
  }
  return nullptr;
}

const ProjectNode* parentOf(const ProjectNode& root, const ProjectNode& node) {
  for (const ProjectNode& child : root.nodes) {
    if (&child == &node) return &root;
    if (const ProjectNode* found = parentOf(child, node)) return found;
  }
  return nullptr;
}

namespace {

const std::string& ownOption(const ProjectNode& node, NodeOptionKind kind) {
  return kind == NodeOptionKind::IncludePath ? node.includePath : node.sourcePath;
}

// Finds node below from, then fills value on the way back up with the nearest set option.
bool inheritedOption(const ProjectNode& from, const ProjectNode& node, NodeOptionKind kind, std::string* value,
                     bool* found) {
  if (&from == &node) {
    *found = true;
  } else {
    for (const ProjectNode& child : from.nodes) {
      if (inheritedOption(child, node, kind, value, found)) return true;
      if (*found) break;
    }
    if (!*found) return false;
  }
  if (ownOption(from, kind).empty()) return false;
  *value = ownOption(from, kind);
  return true;
}

}  // namespace

bool nodeOption(const ProjectNode& root, const ProjectNode& node, NodeOptionKind kind, std::string* value) {
  bool found = false;
  return inheritedOption(root, node, kind, value, &found);
}
