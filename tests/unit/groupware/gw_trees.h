// A project tree and a server tree side by side, with a host whose open
// project names the server, for the groupware tests.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "delivery/mail.h"
#include "foundation/os.h"
#include "groupware/groupware_settings.h"
#include "navigation/search_places.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"

constexpr int64_t kOld = 1000000000;  // 2001-09-09
constexpr int64_t kNew = kOld + 3600;

class GwTrees : public ::testing::Test {
 protected:
  TempDir dir;
  FakeHost host;
  RecordingAlerts alerts;
  Mail mail;
  GroupwareSettings settings;

  GwTrees() {
    platformOs().makeDirectory(dir.file("proj"), nullptr);
    platformOs().makeDirectory(dir.file("srv"), nullptr);
    host.projectPath = joinPath(dir.file("proj"), "demo.kpj");
    settings.server = dir.file("srv");
  }

  static std::string native(const std::string& relative) { return nativePath(relative); }
  std::string local(const std::string& relative) const { return joinPath(dir.file("proj"), native(relative)); }
  std::string server(const std::string& relative) const { return joinPath(dir.file("srv"), native(relative)); }

  // Writes a file with a time and a read-only flag.
  void put(const std::string& path, const std::string& data, int64_t time, bool readOnly) {
    platformOs().makeDirectories(directoryOf(path), nullptr);
    platformOs().setReadOnly(path, false, nullptr);
    ASSERT_TRUE(platformOs().writeFile(path, data, nullptr));
    ASSERT_TRUE(platformOs().setModified(path, time, nullptr));
    ASSERT_TRUE(platformOs().setReadOnly(path, readOnly, nullptr));
  }
  static std::string read(const std::string& path) {
    std::string data;
    platformOs().readFile(path, &data, nullptr);
    return data;
  }
  // The request word of every row, each followed by '|'.
  template <typename Presenter>
  static std::string requests(const Presenter& presenter, const char* (*word)(int32_t)) {
    std::string words;
    for (int32_t i = 0; i < presenter.list().count(); ++i) words += std::string(word(presenter.list()[i]->request)) + "|";
    return words;
  }
  static bool readOnly(const std::string& path) {
    FileAttributes attributes;
    return platformOs().attributes(path, &attributes, nullptr) && attributes.readOnly;
  }
};
