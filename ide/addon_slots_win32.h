// The add-on's process-wide objects: set by the start of the add-on, cleared
// only by its shutdown, null when absent.
#pragma once

#include <windows.h>

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

struct AddonSlots {
  AddonEnvironment* environment = nullptr;
  HWND bar = nullptr;
  QuickFind* quickFind = nullptr;
  HelpFile* helpFile = nullptr;
  SourceScanner* navigation = nullptr;
  CompletionEngine* completion = nullptr;
  ServiceHolder<IIdeEditor>* editor = nullptr;
  ServiceHolder<IIdeStatusLine>* statusLine = nullptr;
  Tableau<Tool>* tools = nullptr;
  ProjectTestA* projectClients = nullptr;
  ServiceHolder<IIdeNodeOptions>* options = nullptr;
  Mail* mail = nullptr;
  TaskList* tasks = nullptr;
  MakeSequence* makeSequence = nullptr;
  Delivery* delivery = nullptr;
  DelivTool* delivTool = nullptr;  // one reference ours; the tool service holds another while registered
  HookSet* hooks = nullptr;
  RecentFiles* recentFiles = nullptr;
  TopBar* topBar = nullptr;
  GeneralBehaviours* general = nullptr;
  GroupwareSettings* groupware = nullptr;
  IMpdChapterAddon* chapter = nullptr;  // one reference ours; the options service holds another
};

AddonSlots& addon();
