// Loading the add-on as the IDE does, and answering the message boxes it shows,
// for the test IDE program and for tests that host the add-on themselves.
#pragma once

#include <windows.h>

#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "test_ide.h"

// The path with every "/" turned into "\\" (the build hands paths over as "Z:/...").
std::string windowsPath(std::string path);

class LoadedAddon {
 public:
  explicit LoadedAddon(const std::string& path);
  ~LoadedAddon();
  LoadedAddon(const LoadedAddon&) = delete;
  LoadedAddon& operator=(const LoadedAddon&) = delete;

  HMODULE module() const { return module_; }
  bool hasEntry() const { return entry_ != nullptr; }
  // The IDE's first call, with a reference of its root for the add-on to release.
  bool start(TestIde* ide);
  // The IDE's last call.
  void stop();

 private:
  using Entry = void(__stdcall*)(intptr_t);
  HMODULE module_;
  Entry entry_ = nullptr;
};

// A value of the add-on's settings, written into the registry as the add-on reads it.
void putAddonSetting(const std::string& section, const std::string& name, const std::string& value);

// A command sent to the add-on's bar window, as its menus and the hooks send them.
void sendBarCommand(UINT id);

// The file's bytes; empty when it cannot be read.
std::string readWholeFile(const std::string& path);

// A folder beside the test program, made when missing. Tests do not build on
// the current directory: the add-on moves it to each project it opens.
std::string testFolder(const std::string& name);

// The mail the tests' MAPI32.DLL records while this lives, into the file name
// under testFolder("mail"): one record per message ("subject:", "flags:",
// "owner:", "to:" lines, then the note).
class RecordedMail {
 public:
  explicit RecordedMail(const std::string& name);
  ~RecordedMail();
  RecordedMail(const RecordedMail&) = delete;
  RecordedMail& operator=(const RecordedMail&) = delete;
  std::string text() const;

 private:
  std::string path_;
};

// Answers every message box of this process with its default button ("Yes" of
// a question), from a thread of its own, so that nothing modal can hang a test;
// each box is recorded (and passed to onBox) as "CAPTION: TEXT". The add-on's
// own dialogs are left to the tests' ModalDriver.
class MessageBoxWatchdog {
 public:
  using BoxListener = void (*)(const std::string& box);
  explicit MessageBoxWatchdog(BoxListener onBox = nullptr);
  ~MessageBoxWatchdog();
  MessageBoxWatchdog(const MessageBoxWatchdog&) = delete;
  MessageBoxWatchdog& operator=(const MessageBoxWatchdog&) = delete;

  std::vector<std::string> boxes();
  // For each box, the caption of its owner window and whether the owner was
  // enabled while the box was up ("Task list, disabled"); "" for none.
  std::vector<std::string> owners();

 private:
  static BOOL CALLBACK answer(HWND window, LPARAM self);
  BoxListener onBox_;
  std::mutex mutex_;
  std::vector<std::string> boxes_;
  std::vector<std::string> owners_;
  bool stopping_ = false;
  std::thread thread_;
};
