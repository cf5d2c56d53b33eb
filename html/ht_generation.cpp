// Running a generation and putting its pages on disk.
#include "html/ht_generation.h"

#include <atomic>
#include <map>
#include <utility>

#include "foundation/alert.h"
#include "foundation/os.h"
#include "html/ht_pages.h"
#include "html/ht_site_record.h"

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
  // fresh: the site directory did not exist, so no page can be there yet.
  DiskPages(const std::string& siteDirectory, bool fresh, std::map<std::string, size_t> repeated,
            htGenerationResult* result)
      : site_(siteDirectory), fresh_(fresh), repeated_(std::move(repeated)), result_(result) {}

  void onPage(const std::string& fileName, const std::string& text) override {
    // Only the last text of a name stays: writing the others would be undone at once.
    auto repeats = repeated_.find(fileName);
    if (repeats != repeated_.end() && --repeats->second > 0) return;
    std::string path = joinPath(site_, fileName);
    // Regenerating after each Make changes few pages: leaving the others alone
    // spares the file system most of its work and keeps their dates.
    std::string current;
    if (!fresh_ && os().readTextFile(path, &current, nullptr) && current == text) {
      ++result_->pagesUnchanged;
      record(fileName, path);
      return;
    }
    std::string err;
    if (os().writeTextFileAtomic(path, text, &err)) {
      ++result_->pagesWritten;
      record(fileName, path);
    } else if (result_->pagesSkipped++ == 0) {
      result_->firstSkipped = err;
    }
  }

  // Every page as it was left; the record is incomplete when a page could not be looked at.
  htSiteRecord& siteRecord() { return record_; }
  bool complete() const { return complete_; }

 private:
  void record(const std::string& fileName, const std::string& path) {
    FileAttributes attributes;
    if (!os().attributes(path, &attributes, nullptr)) {
      complete_ = false;
      return;
    }
    record_.pages.push_back({fileName, attributes.size, attributes.modified});
  }

  std::string site_;
  bool fresh_;
  std::map<std::string, size_t> repeated_;  // the times each repeated name is still to come
  htGenerationResult* result_;
  htSiteRecord record_;
  bool complete_ = true;
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
  std::vector<SkippedPath> leftOut;
  std::vector<std::string> paths = findHtSourceFiles(directory, filters, &leftOut);
  std::string site = htSiteDirectory(directory);
  // The digest is taken before the reading: a source changed meanwhile makes the next run write again.
  std::string inputs;
  bool digested = htInputDigest(project, paths, progress, &inputs);
  htSiteRecord previous;
  bool recorded = readHtSiteRecord(site, &previous);
  if (digested && recorded && previous.inputs == inputs && htRecordedPagesIntact(site, previous)) {
    result->pagesUnchanged = previous.pages.size();
    result->sourcesSkipped = std::move(leftOut);
    return true;
  }
  // An interrupted generation must not leave a record that vouches for its pages.
  if (recorded && !os().removeFile(htSiteRecordPath(site), nullptr)) digested = false;
  size_t walkSkipped = leftOut.size();
  if (!buildHtProject(project, paths, progress, &leftOut)) return false;
  result->sourcesSkipped = std::move(leftOut);
  bool fresh = !os().exists(site);
  if (fresh) os().makeDirectory(site, nullptr);
  DiskPages pages(site, fresh, htRepeatedPageNames(project), result);
  if (!writeHtSite(project, pages, progress)) return false;
  if (digested && pages.complete() && result->pagesSkipped == 0 && result->sourcesSkipped.size() == walkSkipped) {
    pages.siteRecord().inputs = inputs;
    writeHtSiteRecord(site, pages.siteRecord(), nullptr);
  }
  return true;
}

bool openHtmlDocumentation(const std::string& projectDirectory, const std::string& projectName, std::string* err) {
  return os().openDocument(htFramesetPath(projectDirectory, projectName), err);
}
