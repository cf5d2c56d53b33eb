// A window of the help viewer's class that records what the system's help
// call hands it, so that a test can see which topic the add-on asked for.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

struct HeardHelpRequest {
  unsigned command;
  long data;
  std::string file;
};

class FakeHelpViewer {
 public:
  FakeHelpViewer();
  ~FakeHelpViewer();
  FakeHelpViewer(const FakeHelpViewer&) = delete;
  FakeHelpViewer& operator=(const FakeHelpViewer&) = delete;

  // The requests heard since the viewer was made, in order.
  const std::vector<HeardHelpRequest>& heard() const;

 private:
  HWND window_;
};
