// A fresh directory for one test, removed with everything in it afterwards.
#pragma once

#include <string>

#include "foundation/os.h"

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return joinPath(path_, name); }
  // Writes a file (binary) below the directory, creating folders on the way.
  void write(const std::string& relative, const std::string& data) const;
  std::string read(const std::string& relative) const;
  // The temporaries that replacements left anywhere below, joined by spaces: "" when none.
  std::string temporariesLeft() const;

 private:
  std::string path_;
};
