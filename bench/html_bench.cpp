// Documents a source tree with kesto and with Doxygen (HTML only, no graphs,
// EXTRACT_ALL) and prints both wall-clock times; kesto should be 20 times faster.
//
// usage: html_bench TREE KESTO [FILTERS]
//   TREE     a copy of a real code base (kesto writes TREE/kHTML)
//   KESTO    the kesto binary
//   FILTERS  file patterns, default "*.cpp;*.cc;*.c;*.h;*.hpp;*.tcc"
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include <sys/resource.h>

#include "foundation/file_mask.h"

namespace {

std::string quoted(const std::string& text) {
  std::string out = "'";
  for (char c : text) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

struct Timing {
  double wall = -1.0;  // negative when the command failed
  double cpu = 0.0;    // user and system time of the command's processes
};

double childCpuSeconds() {
  struct rusage usage;
  getrusage(RUSAGE_CHILDREN, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// The best of `runs` runs of a shell command: on a shared machine the others measure the neighbours.
Timing timed(const std::string& command, int runs) {
  Timing best;
  for (int i = 0; i < runs; ++i) {
    double cpuBefore = childCpuSeconds();
    auto start = std::chrono::steady_clock::now();
    int status = std::system(command.c_str());
    std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (status != 0) return Timing();
    double cpu = childCpuSeconds() - cpuBefore;
    if (best.wall < 0 || elapsed.count() < best.wall) best.wall = elapsed.count();
    if (i == 0 || cpu < best.cpu) best.cpu = cpu;
  }
  return best;
}

bool writeDoxyfile(const std::string& path, const std::string& tree, const std::string& output,
                   const std::string& filters) {
  std::ofstream file(path);
  std::string patterns;
  for (const std::string& mask : splitMasks(filters)) patterns += " " + mask;
  file << "INPUT = " << tree << "\nRECURSIVE = YES\nFILE_PATTERNS =" << patterns << "\nEXCLUDE = " << tree
       << "/kHTML\nOUTPUT_DIRECTORY = " << output
       << "\nEXTRACT_ALL = YES\nGENERATE_HTML = YES\nGENERATE_LATEX = NO\nGENERATE_RTF = NO\nGENERATE_MAN = NO\n"
          "GENERATE_XML = NO\nHAVE_DOT = NO\nCLASS_GRAPH = NO\nCOLLABORATION_GRAPH = NO\nINCLUDE_GRAPH = NO\n"
          "INCLUDED_BY_GRAPH = NO\nCALL_GRAPH = NO\nCALLER_GRAPH = NO\nGRAPHICAL_HIERARCHY = NO\n"
          "DIRECTORY_GRAPH = NO\nSEARCHENGINE = NO\nQUIET = YES\nWARNINGS = NO\nWARN_IF_UNDOCUMENTED = NO\n";
  return static_cast<bool>(file);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: html_bench TREE KESTO [FILTERS]\n");
    return 2;
  }
  std::string tree = argv[1];
  std::string kesto = argv[2];
  std::string filters = argc > 3 ? argv[3] : "*.cpp;*.cc;*.c;*.h;*.hpp;*.tcc";
  char work[] = "/tmp/html_bench_XXXXXX";
  if (!mkdtemp(work)) {
    std::perror("mkdtemp");
    return 1;
  }
  std::string doxyfile = std::string(work) + "/Doxyfile";
  if (!writeDoxyfile(doxyfile, tree, std::string(work) + "/out", filters)) {
    std::fprintf(stderr, "cannot write %s\n", doxyfile.c_str());
    return 1;
  }

  Timing kestoTime = timed(quoted(kesto) + " html --dir " + quoted(tree) + " --filters " + quoted(filters) +
                               " --name Bench > /dev/null 2>&1",
                           3);
  Timing doxygenTime = timed("doxygen " + quoted(doxyfile) + " > /dev/null 2>&1", 1);
  std::system(("rm -rf " + quoted(work)).c_str());
  if (kestoTime.wall < 0 || doxygenTime.wall < 0) {
    std::fprintf(stderr, "a run failed: kesto %s, doxygen %s\n", kestoTime.wall < 0 ? "failed" : "ok",
                 doxygenTime.wall < 0 ? "failed" : "ok");
    return 1;
  }
  std::printf("tree      %s (%s)\n", tree.c_str(), filters.c_str());
  std::printf("          %10s %10s\n", "wall", "cpu");
  std::printf("kesto     %8.3f s %8.3f s  (best of 3)\n", kestoTime.wall, kestoTime.cpu);
  std::printf("doxygen   %8.3f s %8.3f s\n", doxygenTime.wall, doxygenTime.cpu);
  std::printf("speed-up  %8.1f x %8.1f x  (target: 20 x)\n", doxygenTime.wall / kestoTime.wall,
              doxygenTime.cpu / kestoTime.cpu);
  return 0;
}
