// The top bar window's behaviour: its menus from the bar model, its placement,
// expansion while a menu is open, the status texts and the commands that belong to the bar.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>

#include "foundation/tableau.h"
#include "project/host.h"
#include "project/tool_table.h"

#include "topbar/bar_commands.h"
#include "topbar/bar_geometry.h"
#include "topbar/bar_menu.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_page.h"
#include "topbar/top_bar_settings.h"

// What the bar reaches beyond itself, given by the add-on. The tables are
// asked for when used: they load after the bar.
struct TopBarLinks {
  Host* host = nullptr;
  std::function<const Tableau<Tool>*()> tools;        // null while there is none
  std::function<const RecentFiles*()> recentFiles;    // null while there are none
  std::function<const ProjectOptions*()> projectOptions;  // null without a project
  std::function<bool()> groupwareActive;                  // the Groupware menu is shown
  std::function<bool(const std::string& path)> openAndRecord;
  std::function<void()> activateFrame;
  // Takes a node of host->projectRoot()'s tree out of the project.
  std::function<bool(const ProjectNode& node)> removeProjectNode;
  // Offers Quick add beside node of root; true when a node was added.
  std::function<bool(const ProjectNode& root, const ProjectNode& node)> quickAdd;
};

class TopBar {
 public:
  // Reads the "TopBar" settings; the bar window is the add-on's.
  TopBar(HWND bar, bool newShell, TopBarLinks links);
  // Writes the "TopBar" settings.
  ~TopBar() { settings.write(); }
  TopBar(const TopBar&) = delete;
  TopBar& operator=(const TopBar&) = delete;

  TopBarSettings settings;

  // One menu row at the margins.
  void placeNormal();
  // Every row of the wrapped menu bar, measured the first time.
  void expand();
  void collapse();
  bool expanded() const { return expanded_; }

  // Builds the menus anew from the recent lists and the open project.
  void rebuildMenu();
  const BarMenu& menu() const { return menu_; }
  // Refills the header submenu (the first submenu of the first menu) from the
  // recent headers; a missing piece is named on the status line.
  void refreshHeaderMenu();

  // After the options page was stored: the menus built anew, then the bar
  // placed, shown or hidden and moved in or out of the topmost band as the changes say.
  void applyStoredPage(const TopBarPageChanges& changes);

  // The status text of a highlighted item.
  void showItemStatus(UINT id);
  // The bar's own commands: rebuild, recent projects and headers, tools,
  // project files, options. False for the commands of other features.
  bool runCommand(BarCommand command, uint32_t index);

 private:
  ScreenMetrics screen() const;
  void setHeight(int32_t height);
  const RecentFiles& recent() const;
  // Project file n as the status line and the questions name it.
  std::string projectFileName(uint32_t n) const;
  // The IDE's node at the place of shown, a node of the menu's copy of the
  // tree, with the IDE's tree in *root; null, told on the status line, when
  // the IDE no longer has it.
  const ProjectNode* nodeInIde(const ProjectNode& shown, const ProjectNode** root);
  // Opens project file n; with Alt alone offers Quick add beside it, with Ctrl
  // alone removes it from the project, with both opens it in its other form.
  void runProjectFile(uint32_t index);

  // The tool of a node (by its type, else its file's extension) run on its
  // file; with alternative, the tool of the file's other form when it has one.
  void runNodeTool(const ProjectNode& node, bool alternative = false);

  HWND bar_;
  TopBarLinks links_;
  BarMenu menu_;
  ProjectNode project_;  // the tree the menu's nodes point into
  bool expanded_ = false;
  int32_t expandedHeight_ = 0;  // 0 until measured; every rebuild forgets it
};
