// The top bar's menu bar as a model: the "Kesto" menu with the recent projects,
// the project's targets and files, the recent headers and the features' entries.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/command_ranges.h"
#include "foundation/menu_model.h"
#include "project/project_tree.h"
#include "topbar/recent_files.h"

constexpr uint32_t kFirstRecentProjectId = 200;
constexpr uint32_t kFirstRecentHeaderId = 400;
constexpr uint32_t kFirstProjectFileId = 10000;

enum BarConstruction : int32_t { kLinearConstruction = 0, kHierarchicalConstruction = 1, kNoProjectMenus = 2 };

struct BarMenuInputs {
  const RecentFiles* recent = nullptr;
  const ProjectNode* project = nullptr;  // the project's top node; null when none is open
  int32_t construction = kLinearConstruction;
  bool hideWithView = false;     // "HideWithView"
  bool projectViewOpen = false;  // a project window is shown
  int32_t menuSize = 50;         // items per column; 0 never breaks
  bool groupwareActive = false;
  bool htmlActive = false;
};

struct BarMenu {
  MenuModel bar;                                  // the menu bar; its first popup is "Kesto"
  std::vector<const ProjectNode*> tools;         // tool n is 300 + n; past 399 counted, not shown
  std::vector<const ProjectNode*> projectFiles;  // file n is 10000 + n
};

// Builds the whole menu bar. The nodes of the result point into inputs.project.
BarMenu buildBarMenu(const BarMenuInputs& inputs);

// The header submenu as it is refreshed when a header is used: every recent
// header under its whole path (a rebuild shows file names only).
MenuModel refreshedHeaderMenu(const std::vector<std::string>& headers);

// The file-name part of a path, after its last '/' or '\'.
std::string menuFileName(const std::string& path);
