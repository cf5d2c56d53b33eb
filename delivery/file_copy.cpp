// Block copies through a temporary file, with progress.
#include "delivery/file_copy.h"

#include <memory>
#include <vector>

#include "foundation/os.h"

CopyProgress::CopyProgress(Host& host, uint64_t total) : host_(host), total_(total) {}

CopyProgress::~CopyProgress() { host_.endProgress(); }

void CopyProgress::advance(uint64_t bytes, const std::string& item) {
  done_ += bytes;
  host_.showProgress(done_, total_, item);
}

namespace {

// What one attempt did, so that a failure can count the rest of the file as done.
class BlockCopy {
 public:
  BlockCopy(const std::string& from, const std::string& to, CopyProgress& progress)
      : from_(from), to_(to), name_(fileNameOf(from)), progress_(progress) {}

  CopyFailure run(FinalMode mode, std::string* err) {
    FileAttributes source;
    if (!os().attributes(from_, &source, err)) return CopyFailure::OpenSource;
    size_ = source.size;
    std::unique_ptr<OsFile> in = os().openFile(from_, err);
    if (!in) return CopyFailure::OpenSource;
    // An uncommitted replacement removes its temporary on every return below.
    Replacement out;
    if (!out.open(to_, mode, err, source.executable)) return CopyFailure::CreateTarget;
    std::vector<char> buffer(kCopyBlockSize);
    for (;;) {
      size_t got = 0;
      if (!in->read(buffer.data(), buffer.size(), &got, err)) return CopyFailure::ReadSource;
      if (got == 0) break;
      if (!out.file().write(buffer.data(), got, err)) return CopyFailure::WriteTarget;
      copied_ += got;
      progress_.advance(got, name_);
    }
    if (!out.file().setModified(source.modified, err) || !out.commit(err)) return CopyFailure::WriteTarget;
    return CopyFailure::None;
  }

  // After a failure the file's whole size counts as done.
  void abandon() {
    if (size_ > copied_) progress_.advance(size_ - copied_, name_);
  }

 private:
  const std::string& from_;
  const std::string& to_;
  std::string name_;
  CopyProgress& progress_;
  uint64_t size_ = 0;
  uint64_t copied_ = 0;
};

}  // namespace

CopyFailure copyFileWithProgress(const std::string& from, const std::string& to, FinalMode mode,
                                 CopyProgress& progress, std::string* err) {
  BlockCopy copy(from, to, progress);
  CopyFailure failure = copy.run(mode, err);
  if (failure != CopyFailure::None) copy.abandon();
  return failure;
}

const char* copyFailureText(CopyFailure failure) {
  switch (failure) {
    case CopyFailure::OpenSource:
      return "Error in opening file ";
    case CopyFailure::CreateTarget:
      return "Error in creating file ";
    case CopyFailure::ReadSource:
      return "Error in reading file ";
    case CopyFailure::WriteTarget:
      return "Error in writing file ";
    case CopyFailure::None:
      break;
  }
  return "";
}
