// The make client and its registration with the IDE's make service.
#include "ide/make_client_win32.h"

#include <utility>

#include "foundation/alert.h"
#include "win32/ide_access_win32.h"

namespace {

struct MakeRegistration {
  IdeRef<IIdeMake> service;
  IdeRef<MakeClient> client;
};

// Never destroyed, as the add-on's slots: unregisterMakeClient empties it, and
// an unload without a shutdown must not call into an IDE that may be gone.
MakeRegistration& registration() {
  static MakeRegistration& registration = *new MakeRegistration();
  return registration;
}

}  // namespace

MakeClient::MakeClient(std::function<void()> started, std::function<void(bool)> ended)
    : IUnknownImp(ide_iid::kMakeClient), started_(std::move(started)), ended_(std::move(ended)) {}

void __stdcall MakeClient::MakeStarted() {
  if (started_) started_();
}

void __stdcall MakeClient::MakeEnded(BOOL succeeded) {
  if (ended_) ended_(succeeded != FALSE);
}

void registerMakeClient(const MakeClientFactory& create) {
  IdeRef<IIdeMake>& service = registration().service;
  IdeRef<MakeClient>& client = registration().client;
  service.reset(getService<IIdeMake>(ide_iid::kMake));
  if (!service) {
    alert("Creation SMK impossible", "Erreur");
    return;
  }
  client.reset(create());
  if (!client) {
    alert("Creation CMK impossible", "Erreur");
    return;
  }
  // The service takes a reference of its own.
  client->AddRef();
  service->AddClient(client.get());
}

void unregisterMakeClient() {
  IdeRef<IIdeMake>& service = registration().service;
  IdeRef<MakeClient>& client = registration().client;
  // The service drops the reference it was given; ours goes last.
  if (client && service) service->RemoveClient(client.get());
  client.reset();
  service.reset();
}
