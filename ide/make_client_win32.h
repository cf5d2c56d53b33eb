// The make client: how the add-on hears that a Make starts and ends.
#pragma once

#include <functional>

#include "win32/ide_api_win32.h"

class MakeClient : public IUnknownImp<IMakeClient> {
 public:
  MakeClient(std::function<void()> started, std::function<void(bool succeeded)> ended);

  void __stdcall MakeStarted() override;
  void __stdcall MakeEnded(BOOL succeeded) override;

 private:
  std::function<void()> started_;
  std::function<void(bool)> ended_;
};

// Makes the client to register; null when it cannot be made.
using MakeClientFactory = std::function<MakeClient*()>;

// Hands a new client to the IDE's make service. Tells the user, with an
// "Erreur" box, when the service or the client is missing; the add-on then
// simply hears no build events.
void registerMakeClient(const MakeClientFactory& create);
// Takes the client back from the make service and releases both; nothing when
// registration did not succeed.
void unregisterMakeClient();
