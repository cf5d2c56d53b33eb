// An OS layer that delegates to the real one and fails the Nth call on demand,
// so that every path through a file operation can be proven clean.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "foundation/os.h"

class FaultOs : public Os {
 public:
  // Calls are counted from 1; failAt = 0 never fails.
  int failAt = 0;
  int calls = 0;

  bool readFile(const std::string& p, std::string* d, std::string* e) override {
    return tick(e) && platformOs().readFile(p, d, e);
  }
  bool writeFile(const std::string& p, const std::string& d, std::string* e) override {
    return tick(e) && platformOs().writeFile(p, d, e);
  }
  // The file's reads, writes, time and close count as calls too.
  std::unique_ptr<OsFile> openFile(const std::string& p, std::string* e) override {
    if (!tick(e)) return nullptr;
    return wrap(platformOs().openFile(p, e));
  }
  std::unique_ptr<OsFile> createNewFile(const std::string& p, const std::string& l, FinalMode m, bool r, bool* x,
                                        std::string* e) override {
    *x = false;
    if (!tick(e)) return nullptr;
    return wrap(platformOs().createNewFile(p, l, m, r, x, e));
  }
  LockAttempt tryLock(const std::string& p, std::unique_ptr<OsLock>* l, std::string* e) override {
    return tick(e) ? platformOs().tryLock(p, l, e) : LockAttempt::Failed;
  }
  void sleepMilliseconds(int m) override { platformOs().sleepMilliseconds(m); }
  bool exists(const std::string& p) override { return platformOs().exists(p); }
  bool attributes(const std::string& p, FileAttributes* o, std::string* e) override {
    return tick(e) && platformOs().attributes(p, o, e);
  }
  bool setReadOnly(const std::string& p, bool r, std::string* e) override {
    return tick(e) && platformOs().setReadOnly(p, r, e);
  }
  bool setModified(const std::string& p, int64_t m, std::string* e) override {
    return tick(e) && platformOs().setModified(p, m, e);
  }
  bool listDirectory(const std::string& d, std::vector<DirectoryEntry>* o, std::string* e) override {
    return tick(e) && platformOs().listDirectory(d, o, e);
  }
  bool makeDirectory(const std::string& p, std::string* e) override {
    return tick(e) && platformOs().makeDirectory(p, e);
  }
  bool removeFile(const std::string& p, std::string* e) override { return tick(e) && platformOs().removeFile(p, e); }
  bool removeDirectory(const std::string& p, std::string* e) override {
    return tick(e) && platformOs().removeDirectory(p, e);
  }
  bool renameFile(const std::string& f, const std::string& t, std::string* e) override {
    return tick(e) && platformOs().renameFile(f, t, e);
  }
  bool replaceFile(const std::string& f, const std::string& t, std::string* e) override {
    return tick(e) && platformOs().replaceFile(f, t, e);
  }
  std::string currentDirectory() override { return platformOs().currentDirectory(); }
  bool setCurrentDirectory(const std::string& p, std::string* e) override {
    return tick(e) && platformOs().setCurrentDirectory(p, e);
  }
  // A test may play another user; by default the real one.
  std::optional<std::string> user;
  std::string userName() override { return user ? *user : platformOs().userName(); }
  SystemTime localTime() override { return platformOs().localTime(); }
  SystemTime systemTime() override { return platformOs().systemTime(); }
  std::string formatDate(const SystemTime& d, DateForm f, LocaleChoice l) override {
    return platformOs().formatDate(d, f, l);
  }
  std::string formatTime(const SystemTime& t, LocaleChoice l) override { return platformOs().formatTime(t, l); }
  bool openDocument(const std::string& p, std::string* e) override { return tick(e) && platformOs().openDocument(p, e); }

 private:
  class FaultFile : public OsFile {
   public:
    FaultFile(FaultOs& owner, std::unique_ptr<OsFile> real) : owner_(owner), real_(std::move(real)) {}
    bool read(char* b, size_t s, size_t* g, std::string* e) override { return owner_.tick(e) && real_->read(b, s, g, e); }
    bool write(const char* d, size_t s, std::string* e) override { return owner_.tick(e) && real_->write(d, s, e); }
    bool setModified(int64_t m, std::string* e) override { return owner_.tick(e) && real_->setModified(m, e); }
    bool close(std::string* e) override {
      bool closed = real_->close(e);  // a refused close still releases the handle
      return owner_.tick(e) && closed;
    }

   private:
    FaultOs& owner_;
    std::unique_ptr<OsFile> real_;
  };

  std::unique_ptr<OsFile> wrap(std::unique_ptr<OsFile> real) {
    if (!real) return nullptr;
    return std::make_unique<FaultFile>(*this, std::move(real));
  }

  bool tick(std::string* err) {
    if (++calls != failAt) return true;
    if (err) *err = "injected fault at call " + std::to_string(calls);
    return false;
  }
};
