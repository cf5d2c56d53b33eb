// The top bar: menus, placement and its own commands.
#include "topbar/top_bar_win32.h"

#include "foundation/settings.h"
#include "groupware/quick_add_dialog_win32.h"
#include "ide/addon_slots_win32.h"
#include "ide/ide_host_win32.h"
#include "ide/ide_windows_win32.h"
#include "ide/menu_model_win32.h"
#include "ide/open_file_win32.h"
#include "ide/project_client_win32.h"
#include "ide/tool_table.h"

namespace {

constexpr UINT kIdeOptionsCommand = 13492;

// Runs the IDE tool chosen for a node (by its type, else its file's extension) on its file.
void runNodeTool(const ProjectNode& node) {
  if (!addon().tools) return;
  std::string windowClass;
  std::string tool = findTool(*addon().tools, node.type, &windowClass);
  if (tool == "EditText") {
    const size_t dot = node.name.rfind('.');
    if (dot != std::string::npos) tool = findTool(*addon().tools, node.name.substr(dot), &windowClass);
  }
  const std::string file = projectPath(projectDirectoryOf(ideHost().projectFile()), node.name);
  const int result = ideHost().runTool(tool, file);
  if (result != 0) ideHost().showStatus(toolResultText(result));
}

bool altHeldAlone() { return (GetKeyState(VK_MENU) & 0x8000) && !(GetKeyState(VK_CONTROL) & 0x8000); }

// Quick add beside node, a node of the bar's copy of the tree: the dialog works
// on the host's own tree, where the same place holds the same node. True when a node was added.
bool quickAddBeside(const ProjectNode& barTree, const ProjectNode& node) {
  std::vector<size_t> path;
  const ProjectNode* top = ideHost().projectRoot();
  const ProjectNode* current = top && nodePathOf(barTree, node, &path) ? nodeAtPath(*top, path) : nullptr;
  HINSTANCE instance = addon().environment ? addon().environment->instance : nullptr;
  return current && runQuickAddDialog(instance, ideFrame(), ideHost(), *top, *current);
}

bool projectViewOpen() {
  HWND view = findChildWindow(ideDocuments(), "BCW5Project", nullptr);
  return view && IsWindowVisible(view);
}

}  // namespace

TopBar::TopBar(HWND bar, bool newShell) : settings(TopBarSettings::read(newShell)), bar_(bar) {}

const RecentFiles& TopBar::recent() const {
  static const RecentFiles none;
  return addon().recentFiles ? *addon().recentFiles : none;
}

ScreenMetrics TopBar::screen() const {
  return ScreenMetrics{settings.newShell, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                       GetSystemMetrics(SM_CYMENU), GetSystemMetrics(SM_CYCAPTION)};
}

void TopBar::placeNormal() {
  const BarRect rect = normalBarRect(screen(), settings.leftMargin, settings.rightMargin);
  SetWindowPos(bar_, nullptr, rect.x, rect.y, rect.width, rect.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopBar::setHeight(int32_t height) {
  const BarRect rect = normalBarRect(screen(), settings.leftMargin, settings.rightMargin);
  SetWindowPos(bar_, nullptr, rect.x, rect.y, rect.width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopBar::expand() {
  const ScreenMetrics metrics = screen();
  const int32_t normalHeight = normalBarRect(metrics, settings.leftMargin, settings.rightMargin).height;
  if (expandedHeight_ == 0) {
    expandedHeight_ = measureExpandedHeight(metrics, normalHeight, [this](int32_t height) {
      setHeight(height);
      RECT client;
      GetClientRect(bar_, &client);
      return static_cast<int32_t>(client.bottom - client.top);
    });
  }
  if (expandedHeight_ != normalHeight) setHeight(expandedHeight_);
  expanded_ = true;
}

void TopBar::collapse() {
  if (!expanded_) return;
  placeNormal();
  expanded_ = false;
}

void TopBar::rebuildMenu() {
  BarMenuInputs inputs;
  inputs.recent = &recent();
  const ProjectOptions* options = openProjectOptions();
  const ProjectNode* root = options ? ideHost().projectRoot() : nullptr;
  project_ = root ? *root : ProjectNode();
  inputs.project = root ? &project_ : nullptr;
  inputs.construction = options ? options->hierarchical : settings.construction;
  inputs.hideWithView = options ? options->hideWithView != 0 : settings.hideWithView != 0;
  inputs.projectViewOpen = projectViewOpen();
  inputs.menuSize = settings.menuSize;
  inputs.groupwareActive = ::settings().readInteger("Groupware", "Enabled", 1) != 0;
  inputs.htmlActive = options && options->htmlEnabled != 0;
  menu_ = buildBarMenu(inputs);
  OwnedMenu menuBar = buildMenuBar(menu_.bar);
  if (!menuBar.get()) return;
  HMENU old = GetMenu(bar_);
  if (SetMenu(bar_, menuBar.get())) {
    menuBar.release();
    if (old) DestroyMenu(old);
  }
  expandedHeight_ = 0;
  DrawMenuBar(bar_);
}

void TopBar::showItemStatus(UINT id) {
  BarItemNames names;
  names.recentProject = [this](uint32_t n) { return n < recent().projects.size() ? recent().projects[n] : std::string(); };
  names.recentHeader = [this](uint32_t n) { return n < recent().headers.size() ? recent().headers[n] : std::string(); };
  names.tool = [this](uint32_t n) {
    return n < menu_.tools.size() ? menuFileName(menu_.tools[n]->name) : std::string("nothing !");
  };
  names.projectFile = [this](uint32_t n) {
    return n < menu_.projectFiles.size() ? menuFileName(menu_.projectFiles[n]->name)
                                         : std::string("a file in the project ...");
  };
  ideHost().showStatus(barStatusText(id, names));
}

bool TopBar::runCommand(BarCommand command, uint32_t index) {
  switch (command) {
    case BarCommand::RebuildMenu:
      rebuildMenu();
      return true;
    case BarCommand::RecentProject: {
      activateIdeFrame();
      if (index >= recent().projects.size()) {
        ideHost().showStatus("Internal error: not enough files");
        return true;
      }
      const int result = ideHost().runTool("Project", recent().projects[index]);
      if (result != 0) ideHost().showStatus(toolResultText(result));
      return true;
    }
    case BarCommand::RunTool:
      if (index >= menu_.tools.size()) {
        ideHost().showStatus("Internal error: not enough files");
        return true;
      }
      ideHost().showStatus("Running");
      runNodeTool(*menu_.tools[index]);
      return true;
    case BarCommand::RecentHeader:
      activateIdeFrame();
      if (index < recent().headers.size() && openAndRecord(std::string(recent().headers[index]))) rebuildMenu();
      return true;
    case BarCommand::ProjectFile:
      if (index >= menu_.projectFiles.size()) {
        ideHost().showStatus("Internal error: not enough files");
        return true;
      }
      if (altHeldAlone()) {
        if (quickAddBeside(project_, *menu_.projectFiles[index])) rebuildMenu();
        return true;
      }
      runNodeTool(*menu_.projectFiles[index]);
      activateIdeFrame();
      return true;
    case BarCommand::Options:
      if (HWND frame = ideFrame())
        if (IsWindowEnabled(frame)) PostMessageA(frame, WM_COMMAND, kIdeOptionsCommand, 0);
      return true;
    default:
      return false;
  }
}
