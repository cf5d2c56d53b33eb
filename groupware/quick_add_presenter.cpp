// Quick add: the checks of "Ok" in the dialog's order, each keeping it open.
#include "groupware/quick_add_presenter.h"

#include "foundation/alert.h"

namespace {

constexpr const char* kContainerType = "SourcePool";

bool refuse(const char* text) {
  alert(text, "Warning");
  return false;
}

}  // namespace

const ProjectNode* QuickAddPresenter::containerParent() const {
  const ProjectNode* parent = (current_ ? parentOf(top_, *current_) : nullptr);
  switch (level) {
    case ContainerLevel::Sibling:
      return parent;
    case ContainerLevel::Parent:
      if (parent == &top_) return &top_;
      return parent ? parentOf(top_, *parent) : nullptr;
    case ContainerLevel::Root:
      return &top_;
  }
  return nullptr;
}

const ProjectNode* QuickAddPresenter::inHostTree(const ProjectNode* node) {
  const ProjectNode* root = node ? host_.projectRoot() : nullptr;
  return root ? sameNodeIn(top_, *node, *root) : nullptr;
}

bool QuickAddPresenter::ok() {
  std::string node = name.substr(0, kMaxNodeName);
  if (node.empty()) return refuse("You should specify a node name !");
  // Any dot, a leading one included, counts as an extension.
  if (node.find('.') == std::string::npos) node += ".cpp";
  if (!newContainer) {
    // The top node has no parent to hold a sibling.
    const ProjectNode* parent = inHostTree(current_ ? parentOf(top_, *current_) : nullptr);
    if (!parent) return refuse("No way to get parent node");
    result_ = host_.addProjectNode(*parent, node, "");
    return true;
  }
  const ProjectNode* parent = inHostTree(containerParent());
  if (!parent) return refuse("No way to get parent node");
  std::string container = containerName.substr(0, kMaxContainerName);
  if (container.empty()) return refuse("You should specify a container name !");
  const ProjectNode* made = host_.addProjectNode(*parent, container, kContainerType);
  if (!made) return refuse("No way to create container");
  result_ = host_.addProjectNode(*made, node, "");
  return true;
}
