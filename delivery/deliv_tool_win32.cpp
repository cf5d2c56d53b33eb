// Registering the delivery tool and running it.
#include "delivery/deliv_tool_win32.h"

#include "win32/ide_access_win32.h"

namespace {

constexpr const char* kToolName = "KestoDelivery";

// Deletes the tool of our name; false when there is none or no tool service.
bool deleteNamedTool(IIdeTools* tools) {
  IdeText name(kToolName);
  const IdeHandle found = tools && name ? tools->FindTool(name.get()) : 0;
  return found && tools->DeleteTool(found);
}

}  // namespace

DelivTool::DelivTool(std::function<void()> run) : IUnknownImp(ide_iid::kToolImplementor), run_(std::move(run)) {}

long __stdcall DelivTool::Execute(IIdeString*) {
  run_();
  return 0;
}

void DelivTool::registerTool() {
  if (registered_) return;
  IdeRef<IIdeTools> tools(getService<IIdeTools>(ide_iid::kTools));
  if (!tools) return;
  deleteNamedTool(tools.get());
  IdeText name(kToolName);
  IdeText description("Kesto Project delivery");
  IdeText menuText("Kesto &Delivery");
  IdeText text("[Kesto AddOn extension]");
  if (!name || !description || !menuText || !text) return;
  const IdeToolEntry entry{-3, name.get(), 0x2100, description.get(), menuText.get(), text.get(), this};
  registered_ = tools->AddTool(&entry) != FALSE;
}

void DelivTool::unregisterTool() {
  if (!registered_) return;
  IdeRef<IIdeTools> tools(getService<IIdeTools>(ide_iid::kTools));
  deleteNamedTool(tools.get());
  registered_ = false;
}
