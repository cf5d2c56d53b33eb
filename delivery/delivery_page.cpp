// The project delivery page's rows and storing.
#include "delivery/delivery_page.h"

std::vector<PageControl> DeliveryPage::controls() {
  return {
      checkControl(kEnabledCheck, "Activate delivery tool (in Tool menu)", &withDelivery_),
      listControl(kGroupList, "Select delivery group", &rows_, &selected_),
  };
}

void DeliveryPage::show() {
  edited_.clear();
  selected_ = -1;
  withDelivery_ = project_ ? project_->withDelivery : 0;
  if (project_) rebuildDeliveryGroups(groups_, root_);
  for (int32_t i = 0; i < groups_.count(); ++i)
    edited_.push_back({groups_[i]->type.str(), groups_[i]->directory.str(), groups_[i]->active != 0});
  if (!edited_.empty()) selected_ = 0;
  showRows();
}

void DeliveryPage::showRows() {
  rows_.clear();
  for (const Row& row : edited_)
    rows_.push_back(row.type + " -> " + row.directory + (row.active ? "" : " (inactive)"));
}

bool DeliveryPage::selectedGroup(std::string* directory, bool* active) const {
  if (selected_ < 0 || selected_ >= static_cast<int32_t>(edited_.size())) return false;
  *directory = edited_[static_cast<size_t>(selected_)].directory;
  *active = edited_[static_cast<size_t>(selected_)].active;
  return true;
}

void DeliveryPage::setSelectedGroup(const std::string& directory, bool active) {
  if (selected_ < 0 || selected_ >= static_cast<int32_t>(edited_.size())) return;
  Row& row = edited_[static_cast<size_t>(selected_)];
  row.directory = directory.substr(0, kMaxDirectoryLength);
  row.active = active;
  showRows();
  modified = true;
}

void DeliveryPage::store() {
  if (!project_) return;
  project_->withDelivery = withDelivery_;
  for (const Row& row : edited_) {
    if (OneDelRep* group = findDeliveryGroup(groups_, row.type)) {
      group->directory = row.directory;
      group->active = row.active ? 1 : 0;
    }
  }
  storeDeliveryGroups(groups_, project_);
}
