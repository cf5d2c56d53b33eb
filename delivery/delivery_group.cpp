// Delivery groups rebuilt from the project's delivery node.
#include "delivery/delivery_group.h"

const ProjectNode* findDeliveryNode(const ProjectNode* root) { return root ? findNodeNamed(*root, "DELIVERY") : nullptr; }

void rebuildDeliveryGroups(Tableau<OneDelRep>& groups, const ProjectNode* root) {
  const ProjectNode* delivery = findDeliveryNode(root);
  if (!delivery) {
    groups.clear();
    return;
  }
  for (int32_t i = 0; i < groups.count(); ++i) groups[i]->present = 0;
  for (const ProjectNode& node : delivery->nodes) {
    OneDelRep* group = findDeliveryGroup(groups, node.type);
    if (!group) {
      group = new OneDelRep;
      group->type = node.type;
      groups.append(group);
    }
    group->present = 1;
  }
  for (int32_t i = groups.count() - 1; i >= 0; --i)
    if (!groups[i]->present) groups.removeAndDelete(i);
  groups.sortByText();
}

OneDelRep* findDeliveryGroup(const Tableau<OneDelRep>& groups, const std::string& type) {
  for (int32_t i = 0; i < groups.count(); ++i)
    if (groups[i]->type.str() == type) return groups[i];
  return nullptr;
}

void loadDeliveryGroups(Tableau<OneDelRep>& groups, const ProjectOptions& options) {
  groups.clear();
  for (const DeliveryGroupOption& stored : options.deliveryGroups) {
    OneDelRep* group = new OneDelRep;
    group->type = stored.type;
    group->directory = stored.directory;
    group->active = stored.active ? 1 : 0;
    groups.append(group);
  }
}

void storeDeliveryGroups(const Tableau<OneDelRep>& groups, ProjectOptions* options) {
  options->deliveryGroups.clear();
  for (int32_t i = 0; i < groups.count(); ++i)
    options->deliveryGroups.push_back({groups[i]->type.str(), groups[i]->directory.str(), groups[i]->active});
}
