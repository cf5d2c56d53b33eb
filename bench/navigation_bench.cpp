// Navigation benchmark: generates a source tree of a chosen size and prints,
// side by side, the times of kesto xref and kesto find method against grep -rnw
// and ctags -R on it, then the scanner's throughput on one large text.
//
//   navigation_bench --dir /tmp/navtree --megabytes 120 --kesto build-release/cli/kesto
//                    [--grep /usr/bin/grep] [--ctags /usr/bin/ctags] [--name Paint] [--keep]
//
// The tree is removed afterwards unless --keep is given. Times are the best of
// three runs after one warm-up run, so the tree is in the page cache for all.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "foundation/kstring.h"
#include "foundation/os.h"
#include "navigation/function_scan.h"
#include "navigation/line_match.h"
#include "navigation/name_lines.h"

namespace {

struct Options {
  std::string dir;
  int megabytes = 100;
  std::string kesto;
  std::string grep = "grep";
  std::string ctags = "ctags";
  std::string name = "Paint";
  bool keep = false;
};

// A small deterministic generator, so that two runs build the same tree.
class Random {
 public:
  explicit Random(uint32_t seed) : state_(seed) {}
  uint32_t below(uint32_t n) {
    state_ = state_ * 1664525u + 1013904223u;
    return (state_ >> 8) % n;
  }

 private:
  uint32_t state_;
};

const char* const kSyllables[] = {"win", "dow", "re", "size", "draw", "text", "buf", "fer", "line", "list",
                                  "item", "node", "path", "file", "menu", "bar", "scan", "find", "key", "map"};

std::string identifier(Random& random, bool capital) {
  std::string word;
  int pieces = 2 + static_cast<int>(random.below(2));
  for (int i = 0; i < pieces; ++i) word += kSyllables[random.below(20)];
  if (capital) word[0] = static_cast<char>(word[0] - 'a' + 'A');
  return word;
}

// One source file of about `bytes` bytes: column-one definitions with
// indented bodies, where the searched name is used now and then.
std::string sourceFile(Random& random, size_t bytes, const std::string& name, const std::string& header) {
  std::string text = "// Generated for the navigation benchmark.\n#include \"" + header + "\"\n#include <stdio.h>\n\n";
  while (text.size() < bytes) {
    std::string cls = identifier(random, true);
    text += "int " + cls + "::" + identifier(random, true) + "(int " + identifier(random, false) + ", char *" +
            identifier(random, false) + ")\n{\n";
    int lines = 4 + static_cast<int>(random.below(12));
    for (int i = 0; i < lines; ++i) {
      std::string a = identifier(random, false);
      std::string b = identifier(random, false);
      switch (random.below(5)) {
        case 0: text += "    int " + a + " = " + b + " + " + std::to_string(random.below(100)) + ";\n"; break;
        case 1: text += "    if (" + a + " > " + b + ") {\n        " + identifier(random, true) + "(" + a + ");\n    }\n"; break;
        case 2: text += "    // " + a + " keeps the " + b + " of the " + identifier(random, false) + "\n"; break;
        case 3: text += "    " + a + "->" + identifier(random, true) + "(" + b + ", " + identifier(random, false) + ");\n"; break;
        default: text += "    return " + a + ";\n"; break;
      }
      if (random.below(150) == 0) text += "    " + name + "(" + a + ", " + b + ");\n";
    }
    text += "}\n\n";
  }
  return text;
}

std::string headerFile(Random& random) {
  std::string text = "#pragma once\n";
  for (int i = 0; i < 20; ++i) text += "class " + identifier(random, true) + " : public " + identifier(random, true) + "\n{\n  int " + identifier(random, false) + ";\n};\n";
  return text;
}

bool write(const std::string& path, const std::string& data) {
  std::string err;
  if (os().writeFile(path, data, &err)) return true;
  std::fprintf(stderr, "navigation_bench: %s\n", err.c_str());
  return false;
}

// About 40 kB per file, 25 files per directory, 4 subdirectories per module.
bool generateTree(const Options& options, std::string* largeText) {
  Random random(12345);
  const size_t target = static_cast<size_t>(options.megabytes) * 1024 * 1024;
  size_t written = 0;
  if (!os().makeDirectory(options.dir, nullptr) && !os().exists(options.dir)) return false;
  for (int module = 0; written < target; ++module) {
    std::string moduleDir = joinPath(options.dir, "mod" + std::to_string(module));
    os().makeDirectory(moduleDir, nullptr);
    std::string header = "mod" + std::to_string(module) + ".h";
    if (!write(joinPath(moduleDir, header), headerFile(random))) return false;
    for (int sub = 0; sub < 4 && written < target; ++sub) {
      std::string subDir = joinPath(moduleDir, "part" + std::to_string(sub));
      os().makeDirectory(subDir, nullptr);
      for (int file = 0; file < 25 && written < target; ++file) {
        std::string text = sourceFile(random, 40000, options.name, header);
        const char* extension = file % 5 == 4 ? ".c" : ".cpp";
        if (!write(joinPath(subDir, "unit" + std::to_string(file) + extension), text)) return false;
        written += text.size();
        if (largeText->size() < 64u * 1024 * 1024) *largeText += text;
      }
    }
  }
  std::printf("tree: %s, %.1f MB of sources\n", options.dir.c_str(), written / 1048576.0);
  return true;
}

double seconds(const std::function<void()>& work) {
  double best = 1e30;
  work();  // warm-up: every tool meets a cached tree
  for (int run = 0; run < 3; ++run) {
    auto start = std::chrono::steady_clock::now();
    work();
    std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (elapsed.count() < best) best = elapsed.count();
  }
  return best;
}

void timeCommand(const std::string& label, const std::string& command) {
  double time = seconds([&] {
    if (std::system(command.c_str()) == -1) std::fprintf(stderr, "navigation_bench: cannot run %s\n", command.c_str());
  });
  std::printf("  %-28s %8.3f s\n", label.c_str(), time);
}

void timeScanner(const std::string& text, const std::string& name, const char* lineEnds) {
  double megabytes = text.size() / 1048576.0;
  size_t entries = 0;
  double scan = seconds([&] {
    Tableau<Fnc> list;
    scanFunctions(text, &list);
    entries = static_cast<size_t>(list.count());
  });
  size_t uses = 0;
  NameLines lines(name);
  double search = seconds([&] {
    uses = 0;
    lines.visit(text, [&](std::string_view line, int32_t) {
      uses += matchesReferenceLine(line, name) ? 1 : 0;
      return true;
    });
  });
  std::printf("one text of %.1f MB in memory, %s line ends:\n", megabytes, lineEnds);
  std::printf("  %-28s %8.0f MB/s (%zu entries)\n", "functions scan", megabytes / scan, entries);
  std::printf("  %-28s %8.0f MB/s (%zu uses)\n", "cross reference lines", megabytes / search, uses);
}

std::string withCrLf(const std::string& text) {
  std::string out;
  size_t start = 0;
  for (size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
    out.append(text, start, end - start).append("\r\n");
  return out.append(text, start, std::string::npos);
}

bool removeTree(const std::string& dir) {
  std::vector<DirectoryEntry> entries;
  if (!os().listDirectory(dir, &entries, nullptr)) return false;
  for (const DirectoryEntry& entry : entries) {
    std::string path = joinPath(dir, entry.name);
    if (entry.attributes.isDirectory ? !removeTree(path) : !os().removeFile(path, nullptr)) return false;
  }
  return os().removeDirectory(dir, nullptr);
}

bool parse(int argc, char** argv, Options* options) {
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    std::string value = i + 1 < argc ? argv[i + 1] : "";
    if (arg == "--keep") {
      options->keep = true;
      continue;
    }
    if (value.empty()) return false;
    ++i;
    if (arg == "--dir") options->dir = value;
    else if (arg == "--megabytes") options->megabytes = std::atoi(value.c_str());
    else if (arg == "--kesto") options->kesto = value;
    else if (arg == "--grep") options->grep = value;
    else if (arg == "--ctags") options->ctags = value;
    else if (arg == "--name") options->name = value;
    else return false;
  }
  return !options->dir.empty() && !options->kesto.empty() && options->megabytes > 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!parse(argc, argv, &options)) {
    std::fprintf(stderr, "usage: navigation_bench --dir DIR --kesto PATH [--megabytes N] [--grep PATH] "
                         "[--ctags PATH] [--name NAME] [--keep]\n");
    return 2;
  }
  // An existing tree from an earlier run with --keep is used as it stands.
  std::string largeText;
  if (os().exists(options.dir)) {
    std::printf("tree: %s, kept from an earlier run\n", options.dir.c_str());
    Random random(12345);
    while (largeText.size() < 64u * 1024 * 1024) largeText += sourceFile(random, 40000, options.name, "kept.h");
  } else if (!generateTree(options, &largeText)) {
    return 1;
  }
  // No project file in the tree: kesto searches the current directory. The
  // settings file is left missing so that every setting has its default.
  std::string inTree = "cd '" + options.dir + "' && KESTO_SETTINGS='" + options.dir + ".reg' ";
  // Into a file, not /dev/null: grep stops at its first match when it sees /dev/null.
  std::string quiet = " > '" + options.dir + ".out' 2>&1";
  std::printf("times on the tree (best of 3), name %s:\n", options.name.c_str());
  timeCommand("kesto xref", inTree + "'" + options.kesto + "' xref " + options.name + quiet);
  timeCommand("grep -rnw", inTree + "'" + options.grep + "' -rnw " + options.name + " ." + quiet);
  timeCommand("kesto find method", inTree + "'" + options.kesto + "' find method " + options.name + quiet);
  timeCommand("ctags -R", inTree + "'" + options.ctags + "' -R -f '" + options.dir + ".tags' ." + quiet);
  os().removeFile(options.dir + ".tags", nullptr);
  os().removeFile(options.dir + ".out", nullptr);
  timeScanner(largeText, options.name, "LF");
  timeScanner(withCrLf(largeText), options.name, "CR LF");
  if (!options.keep && !removeTree(options.dir)) std::fprintf(stderr, "navigation_bench: cannot remove %s\n", options.dir.c_str());
  return 0;
}
