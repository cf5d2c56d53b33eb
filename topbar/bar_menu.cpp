// Building the bar's menus from the recent lists and the project tree.
#include "topbar/bar_menu.h"

#include <cstdio>

namespace {

bool isTargetType(const std::string& type) {
  return type == ".exe" || type == ".dll" || type == ".lib" || type.empty() || type[0] != '.';
}

bool isFileType(const std::string& type) { return !type.empty() && type[0] == '.' && type != ".lib" && type != ".obj"; }

// Appends item to menu, in a new column when the menu already holds a whole number of columns.
void appendInColumns(std::vector<MenuItem>& menu, MenuItem item, int32_t menuSize) {
  item.columnBreak = menuSize > 0 && !menu.empty() && menu.size() % static_cast<size_t>(menuSize) == 0;
  menu.push_back(std::move(item));
}

class Builder {
 public:
  Builder(const BarMenuInputs& inputs, BarMenu& result, MenuItem& main) : inputs_(inputs), result_(result), main_(main) {}

  void tool(const ProjectNode& node) {
    // Past its range a run item would arrive as a recent header.
    if (result_.tools.size() == static_cast<size_t>(kToolCommands.size())) {
      ++toolsLeftOut_;
      return;
    }
    char text[300];
    std::snprintf(text, sizeof text, "run %s", menuFileName(node.name).c_str());
    main_.children.push_back(MenuItem::command(kToolCommands.id(static_cast<int32_t>(result_.tools.size())), text));
    result_.tools.push_back(&node);
  }

  int32_t toolsLeftOut() const { return toolsLeftOut_; }

  MenuItem fileItem(const ProjectNode& node) {
    MenuItem item = MenuItem::command(kFirstProjectFileId + static_cast<uint32_t>(result_.projectFiles.size()),
                                      menuFileName(node.name));
    result_.projectFiles.push_back(&node);
    return item;
  }

  // Every container becomes a popup of the menu bar itself, in the order met.
  void linear(const ProjectNode& level, std::vector<MenuItem>* current) {
    for (const ProjectNode& node : level.nodes) {
      if (!node.name.empty() && node.name[0] == '#') continue;
      if (isTargetType(node.type)) {
        result_.bar.items.push_back(MenuItem::popup(menuFileName(node.name)));
        const size_t popup = result_.bar.items.size() - 1;
        if (node.type == ".exe") tool(node);
        std::vector<MenuItem> children;
        linear(node, &children);
        // Nested targets were appended after this popup; its own files go back in place.
        result_.bar.items[popup].children = std::move(children);
      } else if (isFileType(node.type) && current) {
        appendInColumns(*current, fileItem(node), inputs_.menuSize);
      }
    }
  }

  // Containers nest as submenus of their parents; empty ones add nothing.
  void hierarchical(const ProjectNode& level, std::vector<MenuItem>& current) {
    for (const ProjectNode& node : level.nodes) {
      if (!node.name.empty() && node.name[0] == '#') continue;
      if (!node.nodes.empty() && isTargetType(node.type)) {
        MenuItem popup = MenuItem::popup(menuFileName(node.name));
        if (node.type == ".exe") tool(node);
        hierarchical(node, popup.children);
        if (!popup.children.empty()) appendInColumns(current, std::move(popup), inputs_.menuSize);
        continue;
      }
      if (node.type == ".exe") tool(node);
      if (isFileType(node.type)) appendInColumns(current, fileItem(node), inputs_.menuSize);
    }
  }

 private:
  const BarMenuInputs& inputs_;
  BarMenu& result_;
  MenuItem& main_;
  int32_t toolsLeftOut_ = 0;
};

void appendFeatureMenus(const BarMenuInputs& inputs, MenuItem& main) {
  main.children.push_back(MenuItem::separator());
  MenuItem tasks = MenuItem::popup("Tasks");
  tasks.children = {MenuItem::command(171, "Manage..."), MenuItem::command(173, "Flash...")};
  main.children.push_back(tasks);
  if (inputs.groupwareActive) {
    MenuItem groupware = MenuItem::popup("Groupware");
    groupware.children = {MenuItem::command(175, "Get..."),    MenuItem::command(176, "Send..."),
                          MenuItem::separator(),               MenuItem::command(177, "Report..."),
                          MenuItem::command(178, "Server report..."), MenuItem::separator(),
                          MenuItem::command(174, "Mail...")};
    main.children.push_back(groupware);
  }
  if (inputs.htmlActive) {
    MenuItem html = MenuItem::popup("HTML");
    html.children = {MenuItem::command(194, "Generate"), MenuItem::command(195, "Run")};
    main.children.push_back(html);
  }
}

}  // namespace

std::string menuFileName(const std::string& path) {
  size_t cut = path.find_last_of("/\\");
  return cut == std::string::npos ? path : path.substr(cut + 1);
}

BarMenu buildBarMenu(const BarMenuInputs& inputs) {
  BarMenu result;
  MenuItem main = MenuItem::popup("Kesto");
  const std::vector<std::string>& projects = inputs.recent->projects;
  for (size_t i = 0; i < projects.size(); ++i)
    main.children.push_back(MenuItem::command(kFirstRecentProjectId + static_cast<uint32_t>(i), menuFileName(projects[i])));
  if (!projects.empty()) main.children.push_back(MenuItem::separator());
  // The main popup goes first; the project's popups are appended after it.
  result.bar.items.push_back(MenuItem::popup("Kesto"));

  const int32_t construction =
      inputs.construction + (inputs.hideWithView && inputs.projectViewOpen ? 50 : 0);
  if (inputs.project) {
    Builder builder(inputs, result, main);
    if (construction == kLinearConstruction) {
      builder.linear(*inputs.project, nullptr);
      for (size_t i = result.bar.items.size(); i-- > 1;)
        if (result.bar.items[i].children.empty()) result.bar.items.erase(result.bar.items.begin() + static_cast<long>(i));
    } else if (construction == kHierarchicalConstruction) {
      builder.hierarchical(*inputs.project, result.bar.items);
    }
    if (builder.toolsLeftOut() > 0) main.children.push_back(MenuItem::more(builder.toolsLeftOut()));
  }
  if (!result.tools.empty()) main.children.push_back(MenuItem::separator());

  MenuItem headers = MenuItem::popup("Last Includes");
  const std::vector<std::string>& recentHeaders = inputs.recent->headers;
  for (size_t i = 0; i < recentHeaders.size(); ++i)
    headers.children.push_back(
        MenuItem::command(kFirstRecentHeaderId + static_cast<uint32_t>(i), menuFileName(recentHeaders[i])));
  main.children.push_back(headers);
  if (inputs.project) appendFeatureMenus(inputs, main);
  main.children.push_back(MenuItem::separator());
  main.children.push_back(MenuItem::command(199, "Options..."));
  main.children.push_back(MenuItem::command(196, "Help..."));
  result.bar.items[0] = std::move(main);
  return result;
}

MenuModel refreshedHeaderMenu(const std::vector<std::string>& headers) {
  MenuModel menu;
  for (size_t i = 0; i < headers.size(); ++i)
    menu.items.push_back(MenuItem::command(kFirstRecentHeaderId + static_cast<uint32_t>(i), headers[i]));
  return menu;
}
