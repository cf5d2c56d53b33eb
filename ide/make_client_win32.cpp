// The make client and its registration with the IDE's make service.
#include "ide/make_client_win32.h"

#include <utility>

#include "foundation/alert.h"
#include "win32/ide_access_win32.h"

namespace {
IIdeMake* gMakeService = nullptr;
MakeClient* gMakeClient = nullptr;
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
  gMakeService = getService<IIdeMake>(ide_iid::kMake);
  if (!gMakeService) {
    alert("Creation SMK impossible", "Erreur");
    return;
  }
  gMakeClient = create();
  if (!gMakeClient) {
    alert("Creation CMK impossible", "Erreur");
    return;
  }
  gMakeClient->AddRef();
  gMakeService->AddClient(gMakeClient);
}

void unregisterMakeClient() {
  // The service drops the reference it was given; ours goes last.
  if (gMakeClient && gMakeService) gMakeService->RemoveClient(gMakeClient);
  if (gMakeClient) gMakeClient->Release();
  gMakeClient = nullptr;
  if (gMakeService) gMakeService->Release();
  gMakeService = nullptr;
}
