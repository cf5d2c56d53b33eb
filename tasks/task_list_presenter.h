// The task list dialog as a presenter: the rows, the count captions, the
// selection, the edit area and the commands. The Win32 dialog and the kesto
// commands only move values in and out and call the commands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "delivery/mail.h"
#include "project/host.h"
#include "tasks/task_list.h"

// The edit area's controls as text, as the dialog holds them.
struct TaskEditArea {
  std::string name;      // 111
  std::string type;      // 119
  int32_t state = 0;     // 115's selection
  std::string priority;  // 112, an unsigned number
  bool isPublic = false; // 113
  std::string start;     // 114, a short date
  std::string end;       // 117
  // Whether "Ok" reads the two dates back. The dialog always does; the command
  // line reads only the dates it was given, since reading back a shown date of
  // this century would put it in the last one.
  bool readStart = true;
  bool readEnd = true;
  // Dates a host has read itself, stored by "Ok" as they are instead of the
  // texts: the command line takes a four-digit year as written.
  std::optional<SystemTime> startDate;
  std::optional<SystemTime> endDate;
  std::string text;      // 118
};

class TaskListPresenter {
 public:
  static constexpr size_t kMaxFieldLength = 79;    // name and type
  static constexpr size_t kMaxTextLength = 1022;   // description

  TaskListPresenter(TaskList& tasks, Mail& mail, Host& host) : tasks_(tasks), mail_(mail), host_(host) {}

  // Initialisation: rows from the current view, row 0 selected when there is one.
  void open();

  // What the dialog shows.
  const std::vector<std::string>& rows() const { return rows_; }
  // "to &Do : %d", "&Coded : %d", "&Tested : %d", "&Ended: %d", counting hidden tasks.
  const std::string& caption(int32_t state) const { return captions_[state]; }
  int32_t selectedRow() const { return selected_; }
  // Controls 110, 111, 119, 115, 112, 113, 114, 117, 118 and 121 together.
  bool editingEnabled() const { return enabled_; }
  bool modified() const { return modified_; }
  TaskEditArea edit;

  // Commands; every one but selectRow sets the modified mark when it changes something.
  void selectRow(int32_t row);             // 103
  void setSortKey(int32_t sortKey);        // 102
  void setShowFlag(int32_t state, bool on);  // 104-107
  void setReverse(bool on);                // 116
  void create();                           // 109
  // Asks "Remove NAME ?"; false when nothing is selected, editing is refused or the answer is No.
  bool remove();                           // 110
  // Applies the edit area to the selected task; false when nothing is
  // selected or the task is ended and read-only (the edits are then discarded),
  // and when the end of the task could not be notified (the edits are kept).
  bool apply();                            // 121

 private:
  void refresh(bool rebuild);
  void refreshKeepingSelection();
  // The task's row when it is in the view, else row 0, else no selection.
  void selectTaskOrFirstRow(const Task* task);
  void selectAndShow(int32_t row);
  void showTask(int32_t row);
  void updateEnableState(int32_t row, bool force);
  void clearEditArea();
  Task* taskAt(int32_t row) const;

  TaskList& tasks_;
  Mail& mail_;
  Host& host_;
  std::vector<std::string> rows_;
  std::string captions_[kTaskStateCount];
  int32_t selected_ = -1;
  bool enabled_ = false;
  bool modified_ = false;
};

// Reads a number as the dialog reads its number fields: unsigned decimal,
// blanks around it allowed; anything else gives 0.
int32_t readUnsignedField(const std::string& text);
