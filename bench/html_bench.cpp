// Documents a source tree with kesto and with Doxygen (HTML only, no graphs,
// EXTRACT_ALL) and prints their wall-clock and CPU times; kesto should be 20
// times faster. kesto runs once on a new site, then three times over it (the
// regeneration after each Make), of which the best counts.
//
// usage: html_bench TREE KESTO [FILTERS]
//   TREE     a copy of a real code base (kesto writes TREE/kHTML)
//   KESTO    the kesto binary
//   FILTERS  file patterns, default "*.cpp;*.cc;*.c;*.h;*.hpp;*.tcc"
// Doxygen writes into a temporary directory under $TMPDIR (default /tmp), so
// that both tools write to the same kind of file system as TREE.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

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
  // Doxygen's pages go to the same kind of file system as kesto's: $TMPDIR, else /tmp.
  const char* temporary = std::getenv("TMPDIR");
  std::string workTemplate = std::string(temporary && *temporary ? temporary : "/tmp") + "/html_bench_XXXXXX";
  std::vector<char> work(workTemplate.begin(), workTemplate.end());
  work.push_back('\0');
  if (!mkdtemp(work.data())) {
    std::perror("mkdtemp");
    return 1;
  }
  std::string doxyfile = std::string(work.data()) + "/Doxyfile";
  if (!writeDoxyfile(doxyfile, tree, std::string(work.data()) + "/out", filters)) {
    std::fprintf(stderr, "cannot write %s\n", doxyfile.c_str());
    return 1;
  }

  std::string kestoCommand = quoted(kesto) + " html --dir " + quoted(tree) + " --filters " + quoted(filters) +
                             " --name Bench > /dev/null 2>&1";
  std::system(("rm -rf " + quoted(tree + "/kHTML")).c_str());
  Timing firstTime = timed(kestoCommand, 1);
  Timing againTime = timed(kestoCommand, 3);
  Timing doxygenTime = timed("doxygen " + quoted(doxyfile) + " > /dev/null 2>&1", 1);
  std::system(("rm -rf " + quoted(work.data())).c_str());
  if (firstTime.wall < 0 || againTime.wall < 0 || doxygenTime.wall < 0) {
    std::fprintf(stderr, "a run failed\n");
    return 1;
  }
  std::printf("tree              %s (%s)\n", tree.c_str(), filters.c_str());
  std::printf("                    wall s    cpu s   speed-up wall  cpu\n");
  auto row = [&doxygenTime](const char* name, const Timing& t) {
    std::printf("%-16s %9.3f %8.3f %12.1f x %6.1f x\n", name, t.wall, t.cpu, doxygenTime.wall / t.wall,
                doxygenTime.cpu / t.cpu);
  };
  row("kesto, new site", firstTime);
  row("kesto, again", againTime);
  std::printf("%-16s %9.3f %8.3f   (HTML only, no graphs, EXTRACT_ALL; target: kesto 20 x faster)\n", "doxygen",
              doxygenTime.wall, doxygenTime.cpu);
  return 0;
}
