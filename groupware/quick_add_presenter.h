// The quick add dialog as a presenter: a new source node beside the current
// node of the project, optionally inside a new container made on the way.
#pragma once

#include <cstddef>
#include <string>

#include "project/host.h"

// Where the new container goes, by the ids of the dialog's radio buttons.
enum class ContainerLevel { Sibling = 112, Parent = 113, Root = 114 };

class QuickAddPresenter {
 public:
  static constexpr size_t kMaxNodeName = 180;
  static constexpr size_t kMaxContainerName = 255;

  // top: host's project tree as projectRoot() gave it; current: the node of
  // that tree the user works on. Both are copied: the host may read its tree
  // again while the dialog is up, and its nodes move then.
  QuickAddPresenter(Host& host, const ProjectNode& top, const ProjectNode& current)
      : host_(host), top_(top), current_(sameNodeIn(top, current, top_)) {}

  // The controls, as the dialog holds them when it opens.
  std::string name;                              // 102
  bool newContainer = false;                     // 107
  std::string containerName;                     // 110
  ContainerLevel level = ContainerLevel::Parent; // 112-114
  // 110 to 115 go with the check box.
  bool containerControlsEnabled() const { return newContainer; }

  // "Ok": false when a warning keeps the dialog open; true when the dialog
  // ends, with result() the new node or null when the project refused it.
  bool ok();
  const ProjectNode* result() const { return result_; }

 private:
  // The node the container goes under, by the chosen level; null when there is none.
  const ProjectNode* containerParent() const;
  // node, a node of the copy, in the host's tree as it is now; null when gone.
  const ProjectNode* inHostTree(const ProjectNode* node);

  Host& host_;
  const ProjectNode top_;
  const ProjectNode* current_;
  const ProjectNode* result_ = nullptr;
};
