// The add-on's process-wide objects.
#include "ide/addon_slots_win32.h"

#include "completion/completion_engine.h"
#include "delivery/deliv_tool_win32.h"
#include "delivery/delivery_run.h"
#include "delivery/mail.h"
#include "groupware/groupware_settings.h"
#include "ide/general_behaviours_win32.h"
#include "ide/help_file_win32.h"
#include "ide/hook_set_win32.h"
#include "ide/option_chapter_win32.h"
#include "ide/project_client_win32.h"
#include "navigation/quickfind.h"
#include "navigation/source_scanner.h"
#include "rcgen/make_sequence.h"
#include "tasks/task_list.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_win32.h"

AddonSlots::AddonSlots() = default;
AddonSlots::~AddonSlots() = default;

AddonSlots& addon() {
  // Never destroyed: the shutdown table empties the slots in its order, and an
  // unload without a shutdown must not call into an IDE that may be gone.
  static AddonSlots& slots = *new AddonSlots();
  return slots;
}
