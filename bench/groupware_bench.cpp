// Prints how long the groupware send and get scans take over two identical
// trees of a few thousand files (nothing to transfer), beside
// `rsync -a --checksum --dry-run` between the same trees.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "foundation/os.h"
#include "groupware/gw_lists.h"
#include "groupware/tree_scan.h"

namespace {

constexpr const char* kFilters = "*.cpp;*.cc;*.c;*.h;*.rh;*.rc;*.bmp;*.ico;*.gif";

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The same files in both trees with the same times; the server copies are free
// and the local ones read-only, as after a refresh.
bool makeTrees(const std::string& project, const std::string& server, int files) {
  std::string body(2000, 'x');
  for (int i = 0; i < files; ++i) {
    std::string relative = joinPath("dir" + std::to_string(i / 100), "file" + std::to_string(i) + (i % 3 ? ".cpp" : ".h"));
    for (const std::string& root : {project, server}) {
      std::string path = joinPath(root, relative);
      if (!os().makeDirectories(directoryOf(path), nullptr)) return false;
      os().setReadOnly(path, false, nullptr);
      if (!os().writeFile(path, body + std::to_string(i), nullptr) || !os().setModified(path, 1000000000, nullptr))
        return false;
    }
    os().setReadOnly(joinPath(project, relative), true, nullptr);
  }
  return true;
}

template <typename Scan>
double bestOf(int runs, const Scan& scan) {
  double best = 1e9;
  for (int i = 0; i < runs; ++i) {
    auto start = std::chrono::steady_clock::now();
    scan();
    double seconds = secondsSince(start);
    if (seconds < best) best = seconds;
  }
  return best;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: groupware_bench DIR [FILES]\n  makes DIR/project and DIR/server, FILES files each (default 3000)\n");
    return 2;
  }
  std::string dir = argv[1];
  int files = argc > 2 ? std::atoi(argv[2]) : 3000;
  GwRoots roots{normalizeRoot(joinPath(dir, "project")), normalizeRoot(joinPath(dir, "server"))};
  if (files <= 0 || !makeTrees(roots.project, roots.server, files)) {
    std::fprintf(stderr, "groupware_bench: cannot make the trees under %s\n", dir.c_str());
    return 1;
  }
  int listed = 0;
  double send = bestOf(5, [&] {
    GWsendList list;
    fillSendList(list, roots, kFilters);
    listed = list.count();
  });
  std::printf("send scan: %d files, %d listed, %.3f s (best of 5)\n", files, listed, send);
  double get = bestOf(5, [&] {
    GWgetList list;
    fillGetList(list, roots, kFilters);
    listed = list.count();
  });
  std::printf("get scan:  %d files, %d listed, %.3f s (best of 5)\n", files, listed, get);
  std::string rsync = "rsync -a --checksum --dry-run '" + roots.project + "/' '" + roots.server + "/' > /dev/null 2>&1";
  int status = 0;
  double compared = bestOf(5, [&] { status = std::system(rsync.c_str()); });
  if (status != 0)
    std::printf("rsync: not run (status %d; is rsync installed?)\n", status);
  else
    std::printf("rsync -a --checksum --dry-run: %.3f s (best of 5)\n", compared);
  return 0;
}
