// The add-on's one road to the IDE: the IDE's root pointer, its services and its strings.
#pragma once

#include <string>

#include "win32/ide_api_win32.h"

// Keeps the IDE's pointer for the session (the reference the IDE gave is ours).
void storeIdePointer(IIdeRoot* ide);
// Releases that reference and forgets the pointer; nothing when unset.
void releaseIdePointer();
// The pointer with one more reference for the caller; null when unset.
IIdeRoot* acquireIdePointer();

// The service with one reference for the caller; null when the pointer is
// unset or the IDE does not offer it.
IUnknown* getService(const GUID& iid);
template <typename Interface>
Interface* getService(const GUID& iid) {
  return static_cast<Interface*>(getService(iid));
}

// A new IDE string holding text, one reference for the caller; null when the
// pointer is unset or the IDE cannot make one.
IIdeString* makeIdeString(const char* text);
// Copies the string's text into a new array (freed with delete[]) and releases
// the string; null for a null string or a null text.
char* takeIdeString(IIdeString* string);
// As takeIdeString, into *text; false (and *text untouched) when it gives null.
bool takeIdeText(IIdeString* string, std::string* text);

// Releases an interface pointer when it goes out of scope.
template <typename Interface>
class IdeRef {
 public:
  explicit IdeRef(Interface* pointer = nullptr) : pointer_(pointer) {}
  ~IdeRef() {
    if (pointer_) pointer_->Release();
  }
  IdeRef(const IdeRef&) = delete;
  IdeRef& operator=(const IdeRef&) = delete;
  Interface* get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  // Takes pointer's reference in place of the one held, which is released.
  void reset(Interface* pointer = nullptr) {
    Interface* old = pointer_;
    pointer_ = pointer;
    if (old) old->Release();
  }

 private:
  Interface* pointer_;
};

// An IDE string made from text for one call, released after it.
class IdeText : public IdeRef<IIdeString> {
 public:
  explicit IdeText(const std::string& text) : IdeRef(makeIdeString(text.c_str())) {}
};

// Holds one service from construction to destruction; get() is null when the
// IDE did not offer it.
template <typename Interface>
class ServiceHolder {
 public:
  explicit ServiceHolder(const GUID& iid) : service_(getService<Interface>(iid)) {}
  ~ServiceHolder() {
    if (service_) service_->Release();
  }
  ServiceHolder(const ServiceHolder&) = delete;
  ServiceHolder& operator=(const ServiceHolder&) = delete;
  Interface* get() const { return service_; }

 private:
  Interface* service_;
};
