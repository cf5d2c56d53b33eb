// The bar window's command identifiers: which feature each range belongs to,
// and the status text shown while an item is highlighted.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

enum class BarCommand {
  EditorOpened,        // 101: record the new editor's file
  ActiveEditorTitle,   // 102
  RebuildMenu,         // 103
  PaintButtons,        // 111
  Tasks,               // 171-173
  GroupwareMail,       // 174: mail the last report again
  GroupwareGet,        // 175
  GroupwareSend,       // 176
  TitleBarPopup,       // 177, 187-189, 197; 177 is also the groupware "Report..."
  GroupwareServerReport,  // 178
  MethodResults,       // 184
  QuickFind,           // 190-193
  GenerateHtml,        // 194
  OpenHtml,            // 195
  Help,                // 196
  Options,             // 199
  RecentProject,       // 200 + n
  RunTool,             // 300 + n
  RecentHeader,        // 400 + n
  Include,             // 700 + n
  QuickFindResult,     // 800 + n
  Function,            // 1000 + n
  ProjectFile,         // 10000 + n
  None,                // no case in the dispatch
};

constexpr uint32_t kRebuildMenuCommand = 103;
constexpr uint32_t kTaskListCommand = 171;
constexpr uint32_t kAutomaticFlashCommand = 172;  // posted when a project opens on a new day

struct BarCommandEntry {
  uint32_t first;
  uint32_t last;
  BarCommand command;
};

// The feature of an identifier; *index is its place in its range (id - first).
BarCommand barCommandFor(uint32_t id, uint32_t* index);

// The texts the status line shows for numbered items.
struct BarItemNames {
  std::function<std::string(uint32_t)> recentProject;  // path of recent project n
  std::function<std::string(uint32_t)> tool;           // name of tool n
  std::function<std::string(uint32_t)> recentHeader;   // path of recent header n
  std::function<std::string(uint32_t)> projectFile;    // name of project file n
};

// "Open help window", "Switch to project %s", ...; a single blank for any other item.
std::string barStatusText(uint32_t id, const BarItemNames& names);
