// The command-line host's project file, NAME.kpj: the node tree and the
// per-project options, in JSON.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "project/project_options.h"
#include "project/project_tree.h"

class KpjProject : public ProjectOptionStore {
 public:
  // False with "PATH:LINE:COLUMN: what" (or the OS's words) in *err when the
  // file cannot be read or is not a project file.
  bool load(const std::string& path, std::string* err);
  // Parses text read from path (used by load and the fuzz target).
  bool parse(const std::string& path, const std::string& text, std::string* err);
  // Rewrites the file atomically, with the line ends it was read with.
  bool save(std::string* err);

  // Adds a node as the last child of the first node named parent (the top node
  // when parent is empty or the project file's name). False with *err when
  // there is no such parent.
  bool addNode(const std::string& parent, const std::string& name, const std::string& type, std::string* err);
  // Removes the first node of that name with everything below it; false with *err when none.
  bool removeNode(const std::string& name, std::string* err);

  const std::string& path() const { return path_; }
  // The project's top node: the project file itself, with the document's own
  // "description", "include_path" and "source_path", holding the file's nodes.
  const ProjectNode& root() const { return root_; }

  // Adds a node under parent, a node of root()'s tree, in the tree and in the
  // document (save() writes it); null when parent is not in the tree. Only the
  // returned pointer stays valid.
  const ProjectNode* addNodeUnder(const ProjectNode& parent, const std::string& name, const std::string& type);

  // Integers are JSON integers, texts JSON strings with their marker.
  bool get(const std::string& name, std::string* bytes) override;
  bool set(const std::string& name, const std::string& bytes) override;

  // An empty project file's text.
  static std::string emptyText();

 private:
  // Builds root_ from the document.
  bool readRoot(std::string* err);

  std::string path_;
  bool crLfLines_ = false;  // the file was written with CR LF line ends
  nlohmann::ordered_json document_;
  ProjectNode root_;
};
