// Running a generation and putting its pages on disk.
#include "html/ht_generation.h"

#include <atomic>

#include "foundation/alert.h"
#include "foundation/os.h"
#include "html/ht_pages.h"

namespace {

// Above 0 while a generation runs; a worker thread may hold it.
std::atomic<int> runningGenerations{0};

class RunningGeneration {
 public:
  RunningGeneration() { ++runningGenerations; }
  ~RunningGeneration() { --runningGenerations; }
  RunningGeneration(const RunningGeneration&) = delete;
  RunningGeneration& operator=(const RunningGeneration&) = delete;
};

class DiskPages : public htPageSink {
 public:
  DiskPages(const std::string& siteDirectory, htGenerationResult* result) : site_(siteDirectory), result_(result) {}

  void onPage(const std::string& fileName, const std::string& text) override {
    std::string path = joinPath(site_, fileName);
    // Regenerating after each Make changes few pages: leaving the others alone
    // spares the file system most of its work and keeps their dates.
    std::string current;
    if (os().readTextFile(path, &current, nullptr) && current == text) {
      ++result_->pagesUnchanged;
      return;
    }
    std::string err;
    if (os().writeTextFileAtomic(path, text, &err)) {
      ++result_->pagesWritten;
    } else if (result_->pagesSkipped++ == 0) {
      result_->firstSkipped = err;
    }
  }

 private:
  std::string site_;
  htGenerationResult* result_;
};

}  // namespace

std::string htSiteDirectory(const std::string& projectDirectory) { return joinPath(projectDirectory, "kHTML"); }

std::string htProjectName(const std::string& projectFile) {
  std::string name = fileNameOf(projectFile);
  return name.size() > 4 ? name.substr(0, name.size() - 4) : std::string();
}

std::string htFramesetPath(const std::string& projectDirectory, const std::string& projectName) {
  return joinPath(htSiteDirectory(projectDirectory), htFramesetFileName(projectName));
}

bool htmlGenerationRunning() { return runningGenerations > 0; }

bool refuseWhileHtmlGenerationRuns() {
  if (!htmlGenerationRunning()) return false;
  alert("HTML generation in progress", "Warning");
  return true;
}

bool runHtmlGeneration(const std::string& directory, const std::string& filters, const std::string& projectName,
                       htGenerationResult* result, const htProgress& progress) {
  RunningGeneration running;
  htProjet project(projectName, directory, filters);
  if (!buildHtProject(project, progress, &result->sourcesSkipped)) return false;
  std::string site = htSiteDirectory(directory);
  if (!os().exists(site)) os().makeDirectory(site, nullptr);
  DiskPages pages(site, result);
  return writeHtSite(project, pages, progress);
}

bool openHtmlDocumentation(const std::string& projectDirectory, const std::string& projectName, std::string* err) {
  return os().openDocument(htFramesetPath(projectDirectory, projectName), err);
}
