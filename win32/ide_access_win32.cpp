// The IDE's root pointer and the conversions of its strings.
#include "win32/ide_access_win32.h"

#include <cstring>
#include <memory>

namespace {
IIdeRoot* gIde = nullptr;
}  // namespace

void storeIdePointer(IIdeRoot* ide) { gIde = ide; }

void releaseIdePointer() {
  if (!gIde) return;
  gIde->Release();
  gIde = nullptr;
}

IIdeRoot* acquireIdePointer() {
  if (gIde) gIde->AddRef();
  return gIde;
}

IUnknown* getService(const GUID& iid) {
  if (!gIde) return nullptr;
  void* service = nullptr;
  // Whatever a failed query left in the result is not trusted.
  if (gIde->QueryInterface(iid, &service) != S_OK) return nullptr;
  return static_cast<IUnknown*>(service);
}

IIdeString* makeIdeString(const char* text) {
  if (!gIde) return nullptr;
  IIdeString* string = gIde->CreateString();
  if (string) string->SetText(text);
  return string;
}

char* takeIdeString(IIdeString* string) {
  if (!string) return nullptr;
  char* copy = nullptr;
  if (const char* text = string->GetText()) {
    const size_t length = std::strlen(text);
    copy = new char[length + 1];
    std::memcpy(copy, text, length + 1);
  }
  string->Release();
  return copy;
}

bool takeIdeText(IIdeString* string, std::string* text) {
  std::unique_ptr<char[]> copy(takeIdeString(string));
  if (!copy) return false;
  *text = copy.get();
  return true;
}
