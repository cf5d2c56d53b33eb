// The delivery tool in the IDE's Tool menu: registered while a project is open.
#pragma once

#include "ide/ide_api_win32.h"

class DelivTool : public IUnknownImp<IToolImplementor> {
 public:
  DelivTool();
  // Runs a delivery of the open project with the confirmation dialog; always 0.
  long __stdcall Execute(IIdeString* file) override;

  // Replaces any tool of the same name with this one; once per project.
  void registerTool();
  // Takes the tool out of the menu when it was registered.
  void unregisterTool();

 private:
  bool registered_ = false;
};
