// Message boxes raised by the core: one channel whose handler each host installs.
#pragma once

#include <string>

// Styles and answers use the values of the Windows message box so that the
// add-on passes them through unchanged.
enum AlertStyle : unsigned {
  kAlertOk = 0x0,
  kAlertOkCancel = 0x1,
  kAlertYesNo = 0x4,
  kAlertIconHand = 0x10,  // the stop icon
  kAlertIconQuestion = 0x20,
  kAlertIconExclamation = 0x30,
  kAlertIconInformation = 0x40,
};

enum AlertAnswer : int {
  kAnswerOk = 1,
  kAnswerCancel = 2,
  kAnswerYes = 6,
  kAnswerNo = 7,
};

// Receives every box. The handler owns nothing the core gives it beyond the call.
class AlertHandler {
 public:
  virtual ~AlertHandler() = default;
  // Shows text under caption and returns the answer (kAnswerOk for plain boxes).
  virtual int show(const std::string& text, const std::string& caption, unsigned style) = 0;
};

// Installs the handler; null restores the default, which prints "CAPTION: TEXT"
// on standard error and answers Ok, or No to a question. Returns the previous one.
AlertHandler* setAlertHandler(AlertHandler* handler);

// Shows a box through the installed handler and returns its answer.
int alert(const std::string& text, const std::string& caption, unsigned style = kAlertOk);
