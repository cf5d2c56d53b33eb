// The delivery tool in the IDE's Tool menu: registered while a project is open.
#pragma once

#include <functional>

#include "win32/ide_api_win32.h"

class DelivTool : public IUnknownImp<IToolImplementor> {
 public:
  // run delivers the open project; the add-on gives it, with the confirmation dialog.
  explicit DelivTool(std::function<void()> run);
  // Runs the delivery; always 0.
  long __stdcall Execute(IIdeString* file) override;

  // Replaces any tool of the same name with this one; once per project.
  void registerTool();
  // Takes the tool out of the menu when it was registered.
  void unregisterTool();

 private:
  std::function<void()> run_;
  bool registered_ = false;
};
