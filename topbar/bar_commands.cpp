// The bar's command table and status texts.
#include "topbar/bar_commands.h"

#include <cstdio>

#include "foundation/command_ranges.h"

namespace {

constexpr BarCommandEntry kCommands[] = {
    {101, 101, BarCommand::EditorOpened},     {102, 102, BarCommand::ActiveEditorTitle},
    {103, 103, BarCommand::RebuildMenu},      {111, 111, BarCommand::PaintButtons},
    {171, 173, BarCommand::Tasks},            {174, 174, BarCommand::GroupwareMail},
    {175, 175, BarCommand::GroupwareGet},     {176, 176, BarCommand::GroupwareSend},
    {177, 177, BarCommand::TitleBarPopup},    {178, 178, BarCommand::GroupwareServerReport},
    {184, 184, BarCommand::MethodResults},    {187, 189, BarCommand::TitleBarPopup},
    {190, 193, BarCommand::QuickFind},        {194, 194, BarCommand::GenerateHtml},
    {195, 195, BarCommand::OpenHtml},         {196, 196, BarCommand::Help},
    {197, 197, BarCommand::TitleBarPopup},    {199, 199, BarCommand::Options},
    {200, 299, BarCommand::RecentProject},    {kToolCommands.first, kToolCommands.last, BarCommand::RunTool},
    {400, 599, BarCommand::RecentHeader},
    {kIncludeCommands.first, kIncludeCommands.last, BarCommand::Include},
    {kQuickFindResultCommands.first, kQuickFindResultCommands.last, BarCommand::QuickFindResult},
    {kFunctionCommands.first, kFunctionCommands.last, BarCommand::Function},
    {10000, 19999, BarCommand::ProjectFile},
};

std::string formatted(const char* pattern, const std::string& text) {
  char buffer[600];
  std::snprintf(buffer, sizeof buffer, pattern, text.c_str());
  return buffer;
}

}  // namespace

BarCommand barCommandFor(uint32_t id, uint32_t* index) {
  for (const BarCommandEntry& entry : kCommands)
    if (id >= entry.first && id <= entry.last) {
      if (index) *index = id - entry.first;
      return entry.command;
    }
  return BarCommand::None;
}

std::string barStatusText(uint32_t id, const BarItemNames& names) {
  uint32_t index = 0;
  switch (barCommandFor(id, &index)) {
    case BarCommand::Help:
      return "Open help window";
    case BarCommand::Options:
      return "Open options dialog";
    case BarCommand::RecentProject:
      return formatted("Switch to project %s", names.recentProject(index));
    case BarCommand::RunTool:
      return formatted("Run %s", names.tool(index));
    case BarCommand::RecentHeader:
      return formatted("Open %s", names.recentHeader(index));
    case BarCommand::ProjectFile:
      return formatted("Open %s", names.projectFile(index));
    default:
      return " ";
  }
}
