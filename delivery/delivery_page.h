// The project delivery page as a presenter: the tool's switch and the delivery
// groups of the open project, each row's directory and active state set from
// the list, all stored into the project's options.
#pragma once

#include <string>

#include "delivery/delivery_group.h"
#include "project/option_page.h"

class DeliveryPage : public ProjectOptionPage {
 public:
  static constexpr int32_t kEnabledCheck = 1010;
  static constexpr int32_t kGroupList = 1011;
  static constexpr size_t kMaxDirectoryLength = 259;

  // The groups and the project's tree are borrowed for the page's life.
  DeliveryPage(Tableau<OneDelRep>& groups, ProjectOptions* project, const ProjectNode* root)
      : ProjectOptionPage(project), groups_(groups), root_(root) {}

  std::vector<PageControl> controls() override;
  // Rebuilds the groups from the project's delivery node first.
  void show() override;
  void store() override;

  // The selected group's directory and state, for the prompt that edits them.
  bool selectedGroup(std::string* directory, bool* active) const;
  // Sets them; the directory is cut at kMaxDirectoryLength. Nothing without a selection.
  void setSelectedGroup(const std::string& directory, bool active);
  // The tool's switch as last stored.
  bool toolEnabled() const { return project_ && project_->withDelivery != 0; }

 private:
  struct Row {
    std::string type;
    std::string directory;
    bool active;
  };
  void showRows();

  Tableau<OneDelRep>& groups_;
  const ProjectNode* root_;
  int32_t withDelivery_ = 0;
  std::vector<Row> edited_;
  std::vector<std::string> rows_;
  int32_t selected_ = -1;
};
