// Delivery groups: the types of the project's deliverable nodes and the directory each type goes to.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/kstring.h"
#include "foundation/tableau.h"
#include "project/project_options.h"
#include "project/project_tree.h"

// One group; its text is the node type, by which the table is sorted.
class OneDelRep : public Basic {
 public:
  String type;       // node type, compared exactly
  String directory;  // where the group's files are delivered
  int16_t active = 1;
  int32_t present = 0;  // set while the table is rebuilt

  operator char*() override { return type; }
};

// The node whose children are the files to deliver; null when the project has none.
const ProjectNode* findDeliveryNode(const ProjectNode* root);

// Makes the table hold one group per type of the delivery node's children:
// existing groups keep their directory and state, new ones start with no
// directory; the others go. Empty without a project or a delivery node.
void rebuildDeliveryGroups(Tableau<OneDelRep>& groups, const ProjectNode* root);

// The group of that type; null when none.
OneDelRep* findDeliveryGroup(const Tableau<OneDelRep>& groups, const std::string& type);

// The groups as the project stores them, and back.
void loadDeliveryGroups(Tableau<OneDelRep>& groups, const ProjectOptions& options);
void storeDeliveryGroups(const Tableau<OneDelRep>& groups, ProjectOptions* options);
