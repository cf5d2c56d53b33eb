// The add-on's process-wide objects: set by the start of the add-on, cleared
// only by its shutdown, null when absent.
#pragma once

#include <windows.h>

#include <memory>

#include "ide/addon_environment_win32.h"
#include "win32/ide_access_win32.h"
#include "project/tool_table.h"

class CompletionEngine;
class DelivTool;
class Delivery;
class MakeSequence;
class GeneralBehaviours;
struct GroupwareSettings;
class HelpFile;
class HookSet;
class IMpdChapterAddon;
class Mail;
class ProjectTestA;
class QuickFind;
class RecentFiles;
class SourceScanner;
class TaskList;
class TopBar;

// Each slot owns its object; the shutdown table empties them in its order.
struct AddonSlots {
  std::unique_ptr<AddonEnvironment> environment;
  HWND bar = nullptr;  // destroyed by the shutdown table, before the classes go
  std::unique_ptr<QuickFind> quickFind;
  std::unique_ptr<HelpFile> helpFile;
  std::unique_ptr<SourceScanner> navigation;
  std::unique_ptr<CompletionEngine> completion;
  std::unique_ptr<ServiceHolder<IIdeEditor>> editor;
  std::unique_ptr<ServiceHolder<IIdeStatusLine>> statusLine;
  std::unique_ptr<Tableau<Tool>> tools;
  std::unique_ptr<ProjectTestA> projectClients;
  std::unique_ptr<ServiceHolder<IIdeNodeOptions>> options;
  std::unique_ptr<Mail> mail;
  std::unique_ptr<TaskList> tasks;
  std::unique_ptr<MakeSequence> makeSequence;
  std::unique_ptr<Delivery> delivery;
  IdeRef<DelivTool> delivTool;  // our reference; the tool service holds another while registered
  std::unique_ptr<HookSet> hooks;
  std::unique_ptr<RecentFiles> recentFiles;
  std::unique_ptr<TopBar> topBar;
  std::unique_ptr<GeneralBehaviours> general;
  std::unique_ptr<GroupwareSettings> groupware;
  IdeRef<IMpdChapterAddon> chapter;  // our reference; the options service holds another

  AddonSlots();
  ~AddonSlots();
  AddonSlots(const AddonSlots&) = delete;
  AddonSlots& operator=(const AddonSlots&) = delete;
};

AddonSlots& addon();
