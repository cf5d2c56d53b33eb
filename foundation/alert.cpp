// The process-wide alert channel and its fallback handler.
#include "foundation/alert.h"

#include <cstdio>

namespace {

class StderrAlertHandler : public AlertHandler {
 public:
  int show(const std::string& text, const std::string& caption, unsigned style) override {
    std::fprintf(stderr, "%s: %s\n", caption.c_str(), text.c_str());
    return (style & 0xF) == kAlertYesNo ? kAnswerNo : kAnswerOk;
  }
};

StderrAlertHandler fallbackHandler;
AlertHandler* currentHandler = nullptr;

}  // namespace

AlertHandler* setAlertHandler(AlertHandler* handler) {
  AlertHandler* previous = currentHandler;
  currentHandler = handler;
  return previous;
}

int alert(const std::string& text, const std::string& caption, unsigned style) {
  AlertHandler* handler = currentHandler ? currentHandler : &fallbackHandler;
  return handler->show(text, caption, style);
}
