// The worker thread of a documentation generation.
#include "html/ht_thread_win32.h"

#include <new>

#include "foundation/directory_walk.h"
#include "html/ht_generation.h"

namespace {

struct Job {
  std::string directory;
  std::string filters;
  std::string name;
  HWND notify;
};

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

// The last generation's thread, kept until the next one starts or shutdown waits for it.
std::unique_ptr<void, HandleCloser> gThread;

DWORD WINAPI generate(LPVOID parameter) {
  std::unique_ptr<Job> job(static_cast<Job*>(parameter));
  htGenerationResult result;
  runHtmlGeneration(job->directory, job->filters, job->name, &result);
  // The status line belongs to the IDE's thread: the text travels there by message.
  if (!result.sourcesSkipped.empty()) {
    auto text = std::make_unique<std::string>(skippedPathsText(result.sourcesSkipped));
    if (PostMessageA(job->notify, kHtmlReportMessage, 0, reinterpret_cast<LPARAM>(text.get()))) text.release();
  }
  return 0;
}

}  // namespace

void startHtmlGenerationThread(const std::string& directory, const std::string& filters, const std::string& name,
                               HWND notify) {
  if (refuseWhileHtmlGenerationRuns()) return;
  std::unique_ptr<Job> job(new (std::nothrow) Job{directory, filters, name, notify});
  if (!job) return;
  HANDLE thread = CreateThread(nullptr, 0, generate, job.get(), 0, nullptr);
  if (!thread) return;
  job.release();  // the thread owns it now
  gThread.reset(thread);
}

void waitForHtmlGeneration() {
  if (gThread) WaitForSingleObject(gThread.get(), INFINITE);
  gThread.reset();
}

std::unique_ptr<std::string> takeHtmlReport(LPARAM lParam) {
  return std::unique_ptr<std::string>(reinterpret_cast<std::string*>(lParam));
}
