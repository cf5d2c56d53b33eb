// The project's node tree as every host exposes it to the features.
#pragma once

#include <string>
#include <vector>

// A node of the project tree. name is the node's file (relative to the project
// directory or absolute); the two paths are its directory options.
struct ProjectNode {
  std::string name;
  std::string type;         // node type, such as ".exe", ".cpp", "SourcePool"
  std::string description;
  std::string includePath;  // directory option kind 1
  std::string sourcePath;   // directory option kind 3
  std::vector<ProjectNode> nodes;
};

// The IDE's selectors for a node's directory options.
enum class NodeOptionKind { IncludePath = 1, SourcePath = 3 };

// The node whose file is `file` (compared by file name, case-insensitively),
// searched depth-first from root; null when none holds it.
const ProjectNode* findNodeHoldingFile(const ProjectNode& root, const std::string& file);

// The directory of a project file; the current directory when the path names none.
std::string projectDirectoryOf(const std::string& projectFile);

// A node's file or a directory option: relative names are taken from the
// project directory, which is the IDE's current directory while a project is open.
std::string projectPath(const std::string& projectDirectory, const std::string& name);

// The first node of that name, depth-first; null when none.
const ProjectNode* findNodeNamed(const ProjectNode& root, const std::string& name);

// The node that holds node among its children, searched from root; null for
// root itself and for a node outside the tree.
const ProjectNode* parentOf(const ProjectNode& root, const ProjectNode& node);

// The node of tree `to` at the place that node has in tree `from` (the same
// positions among siblings from the top down), when it still has node's name
// and type; null otherwise, as for a node that another tree has lost.
const ProjectNode* sameNodeIn(const ProjectNode& from, const ProjectNode& node, const ProjectNode& to);

// The option of a node of root's tree: its own value, else its nearest
// ancestor's, as the IDE's nodes inherit options; false when none has one.
bool nodeOption(const ProjectNode& root, const ProjectNode& node, NodeOptionKind kind, std::string* value);
