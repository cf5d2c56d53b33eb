// The top bar: menus, placement and its own commands.
#include "topbar/top_bar_win32.h"

#include "foundation/alert.h"
#include "foundation/settings.h"
#include "win32/ide_windows_win32.h"
#include "win32/menu_model_win32.h"

namespace {

constexpr UINT kIdeOptionsCommand = 13492;

bool projectViewOpen() {
  HWND view = findChildWindow(ideDocuments(), "BCW5Project", nullptr);
  return view && IsWindowVisible(view);
}

}  // namespace

TopBar::TopBar(HWND bar, bool newShell, TopBarLinks links)
    : settings(TopBarSettings::read(newShell)), bar_(bar), links_(std::move(links)) {}

const RecentFiles& TopBar::recent() const {
  static const RecentFiles none;
  const RecentFiles* files = links_.recentFiles();
  return files ? *files : none;
}

void TopBar::runNodeTool(const ProjectNode& node, bool alternative) {
  const Tableau<Tool>* tools = links_.tools();
  if (!tools) return;
  std::string windowClass;
  std::string tool = alternative ? alternativeTool(node.name) : "";
  if (tool.empty()) {
    tool = findTool(*tools, node.type, &windowClass);
    if (tool == "EditText") {
      const size_t dot = node.name.rfind('.');
      if (dot != std::string::npos) tool = findTool(*tools, node.name.substr(dot), &windowClass);
    }
  }
  Host& host = *links_.host;
  const std::string file = projectPath(projectDirectoryOf(host.projectFile()), node.name);
  const int result = host.runTool(tool, file);
  if (result != 0) host.showStatus(toolResultText(result));
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
    // The measure left the window at the last height it tried.
    setHeight(expandedHeight_);
  } else if (expandedHeight_ != normalHeight) {
    setHeight(expandedHeight_);
  }
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
  const ProjectOptions* options = links_.projectOptions();
  const ProjectNode* root = options ? links_.host->projectRoot() : nullptr;
  project_ = root ? *root : ProjectNode();
  inputs.project = root ? &project_ : nullptr;
  inputs.construction = options ? options->hierarchical : settings.construction;
  inputs.hideWithView = options ? options->hideWithView != 0 : settings.hideWithView != 0;
  inputs.projectViewOpen = projectViewOpen();
  inputs.menuSize = settings.menuSize;
  inputs.groupwareActive = links_.groupwareActive();
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

void TopBar::refreshHeaderMenu() {
  HMENU menuBar = GetMenu(bar_);
  if (!menuBar) return links_.host->showStatus("Pas de bar");
  HMENU first = GetSubMenu(menuBar, 0);
  if (!first) return links_.host->showStatus("Pas de mnu");
  const int count = GetMenuItemCount(first);
  if (count <= 0) return links_.host->showStatus("mnu.taille=0");
  HMENU headers = nullptr;
  for (int item = 0; item < count && !headers; ++item) headers = GetSubMenu(first, item);
  if (!headers) return links_.host->showStatus("Pas de hh");
  replaceMenuItems(headers, refreshedHeaderMenu(recent().headers));
  DrawMenuBar(bar_);
}

std::string TopBar::projectFileName(uint32_t n) const {
  return n < menu_.projectFiles.size() ? menuFileName(menu_.projectFiles[n]->name)
                                       : std::string("a file in the project ...");
}

const ProjectNode* TopBar::nodeInIde(const ProjectNode& shown, const ProjectNode** root) {
  // The menu holds a copy of the tree: the IDE's own node is found at the same place.
  *root = links_.host->projectRoot();
  const ProjectNode* node = *root ? sameNodeIn(project_, shown, **root) : nullptr;
  if (!node) links_.host->showStatus("Internal error: bad file");
  return node;
}

void TopBar::runProjectFile(uint32_t index) {
  if (index >= menu_.projectFiles.size()) return links_.host->showStatus("Internal error: not enough files");
  const bool alt = GetKeyState(VK_MENU) & 0x8000;
  const bool control = GetKeyState(VK_CONTROL) & 0x8000;
  const bool remove = control && !alt;
  // Asked first: the question's message loop may read the project again.
  if (remove && alert("Okay to remove\n" + projectFileName(index) + " ?", "Confirmation", kAlertYesNo) != kAnswerYes)
    return;
  const ProjectNode* root = nullptr;
  const ProjectNode* node = nodeInIde(*menu_.projectFiles[index], &root);
  if (!node) return;
  if (alt && !control) {
    if (links_.quickAdd(*root, *node)) rebuildMenu();
    return;
  }
  if (!remove) return runNodeTool(*node, alt && control);
  if (links_.removeProjectNode(*node)) rebuildMenu();
}

void TopBar::applyStoredPage(const TopBarPageChanges& changes) {
  rebuildMenu();
  if (changes.margins) placeNormal();
  if (changes.enabled) ShowWindow(bar_, settings.enabled ? SW_SHOWNA : SW_HIDE);
  if (!changes.alwaysOnTop) return;
  // The older look has no tool-window style.
  const LONG toolWindow = settings.newShell ? WS_EX_TOOLWINDOW : 0;
  SetWindowLongA(bar_, GWL_EXSTYLE, settings.alwaysOnTop ? WS_EX_TOPMOST | toolWindow : toolWindow);
  SetWindowPos(bar_, settings.alwaysOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TopBar::showItemStatus(UINT id) {
  BarItemNames names;
  names.recentProject = [this](uint32_t n) { return n < recent().projects.size() ? recent().projects[n] : std::string(); };
  names.recentHeader = [this](uint32_t n) { return n < recent().headers.size() ? recent().headers[n] : std::string(); };
  names.tool = [this](uint32_t n) {
    return n < menu_.tools.size() ? menuFileName(menu_.tools[n]->name) : std::string("nothing !");
  };
  names.projectFile = [this](uint32_t n) { return projectFileName(n); };
  links_.host->showStatus(barStatusText(id, names));
}

bool TopBar::runCommand(BarCommand command, uint32_t index) {
  switch (command) {
    case BarCommand::RebuildMenu:
      rebuildMenu();
      return true;
    case BarCommand::RecentProject: {
      links_.activateFrame();
      if (index >= recent().projects.size()) {
        links_.host->showStatus("Internal error: not enough files");
        return true;
      }
      const int result = links_.host->runTool("Project", recent().projects[index]);
      if (result != 0) links_.host->showStatus(toolResultText(result));
      return true;
    }
    case BarCommand::RunTool: {
      if (index >= menu_.tools.size()) {
        links_.host->showStatus("Internal error: not enough files");
        return true;
      }
      const ProjectNode* root = nullptr;
      const ProjectNode* node = nodeInIde(*menu_.tools[index], &root);
      if (!node) return true;
      links_.host->showStatus("Running");
      runNodeTool(*node);
      return true;
    }
    case BarCommand::RecentHeader:
      links_.activateFrame();
      // A copy: recording the header moves the entries.
      if (index < recent().headers.size()) links_.openAndRecord(std::string(recent().headers[index]));
      return true;
    case BarCommand::ProjectFile:
      runProjectFile(index);
      links_.activateFrame();
      return true;
    case BarCommand::Options:
      if (HWND frame = ideFrame())
        if (IsWindowEnabled(frame)) PostMessageA(frame, WM_COMMAND, kIdeOptionsCommand, 0);
      return true;
    default:
      return false;
  }
}
