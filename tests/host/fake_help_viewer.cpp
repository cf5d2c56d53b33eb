// The stand-in help viewer: the system finds it by its class and sends it each request.
#include "fake_help_viewer.h"

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

std::vector<HeardHelpRequest> gHeard;

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

}  // namespace

FakeHelpViewer::FakeHelpViewer() {
  WNDCLASSA viewerClass = {};
  viewerClass.lpfnWndProc = viewerProcedure;
  viewerClass.hInstance = GetModuleHandleA(nullptr);
  viewerClass.lpszClassName = "MS_WINHELP";
  RegisterClassA(&viewerClass);
  window_ = CreateWindowA("MS_WINHELP", "help", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  gHeard.clear();
}

FakeHelpViewer::~FakeHelpViewer() { DestroyWindow(window_); }

const std::vector<HeardHelpRequest>& FakeHelpViewer::heard() const { return gHeard; }
