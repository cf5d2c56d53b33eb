// The help viewer hears of the add-on's help file only once a topic was shown.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "ide/help_file_win32.h"

namespace {

// What the system's help call hands the viewer window.
struct HelpRequest {
  WORD size;
  WORD command;
  LONG data;
  LONG reserved;
  WORD fileOffset;
  WORD dataOffset;
};

struct HeardRequest {
  unsigned command;
  long data;
  std::string file;
};

std::vector<HeardRequest> gHeard;

LRESULT CALLBACK viewerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COPYDATA) {
    const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    const auto* request = static_cast<const HelpRequest*>(data->lpData);
    const char* file = request->fileOffset ? static_cast<const char*>(data->lpData) + request->fileOffset : "";
    gHeard.push_back({request->command, request->data, file});
    return TRUE;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

// Stands in for the help viewer, which the system finds by its class.
class FakeHelpViewer {
 public:
  FakeHelpViewer() {
    WNDCLASSA viewerClass = {};
    viewerClass.lpfnWndProc = viewerProcedure;
    viewerClass.hInstance = GetModuleHandleA(nullptr);
    viewerClass.lpszClassName = "MS_WINHELP";
    RegisterClassA(&viewerClass);
    window_ = CreateWindowA("MS_WINHELP", "help", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    gHeard.clear();
  }
  ~FakeHelpViewer() { DestroyWindow(window_); }

 private:
  HWND window_;
};

}  // namespace

TEST(HelpFileTest, QuitIsSentOnceAndOnlyAfterATopic) {
  FakeHelpViewer viewer;
  char module[MAX_PATH];
  GetModuleFileNameA(nullptr, module, MAX_PATH);
  std::string expected = module;
  expected.replace(expected.size() - 3, 3, "hlp");

  delete new HelpFile(GetModuleHandleA(nullptr), nullptr);
  EXPECT_TRUE(gHeard.empty()) << "no topic, nothing for the viewer";

  auto* help = new HelpFile(GetModuleHandleA(nullptr), nullptr);
  EXPECT_EQ(help->path(), expected);
  help->showTopic(16);
  help->showTopic(12);
  delete help;
  ASSERT_EQ(gHeard.size(), 3u);
  EXPECT_EQ(gHeard[0].command, static_cast<unsigned>(HELP_CONTEXT));
  EXPECT_EQ(gHeard[0].data, 16);
  EXPECT_EQ(gHeard[0].file, expected);
  EXPECT_EQ(gHeard[1].command, static_cast<unsigned>(HELP_CONTEXT));
  EXPECT_EQ(gHeard[1].data, 12);
  EXPECT_EQ(gHeard[2].command, static_cast<unsigned>(HELP_QUIT));
  EXPECT_EQ(gHeard[2].file, expected);
}
