// Runs each reader of outside input at 1x, 4x and 16x of a large generated
// input and prints how its time grows (a linear reader stays near 4 per 4x,
// the bound is 5) and its peak memory per input byte, the read buffer included.
//
//   reader_scaling_bench [--megabytes N] [--dir DIR]
//
// N (default 4) is the 1x size (a quarter of it for the HTML model of many
// classes, which holds 40 bytes per input byte); inputs are written to DIR (default /tmp) and
// read back through the OS layer, as the hosts read them. Peak memory is the
// resident high-water mark of this process, reset before each run (Linux, glibc).
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cli/kpj_project.h"
#include "completion/keyword_extraction.h"
#include "foundation/kstring.h"
#include "foundation/os.h"
#include "foundation/regedit_text.h"
#include "foundation/tableau.h"
#include "html/ht_reader.h"
#include "navigation/function_scan.h"
#include "navigation/include_scan.h"
#include "rcgen/rc_script_reader.h"
#include "rcgen/version_stamping.h"

namespace {

struct Reader {
  const char* name;
  double share;  // of the 1x size: readers that hold a large model get less
  // Text of about `bytes` bytes that the reader finds hard.
  std::function<std::string(size_t bytes)> input;
  // Reads the file at path the way its host does.
  std::function<void(const std::string& path)> read;
};

std::string repeated(const std::string& unit, size_t bytes) {
  std::string text;
  text.reserve(bytes + unit.size());
  while (text.size() < bytes) text += unit;
  return text;
}

std::string numbered(const std::function<std::string(size_t)>& line, size_t bytes) {
  std::string text;
  text.reserve(bytes + 128);
  for (size_t i = 0; text.size() < bytes; ++i) text += line(i);
  return text;
}

std::string fileBytes(const std::string& path) {
  std::string bytes;
  if (!os().readFile(path, &bytes, nullptr)) bytes.clear();
  return bytes;
}

void readHtml(const std::string& path) {
  std::string text = fileBytes(path);
  htProjet project("Bench", directoryOf(path), "*.cpp");
  readHtSource(project, *project.addFile(path), text);
}

const Reader kReaders[] = {
    {"project file (nodes)", 1,
     [](size_t bytes) {
       std::string nodes = numbered(
           [](size_t i) { return "{\"name\": \"n" + std::to_string(i) + ".cpp\", \"type\": \".cpp\"},\n"; }, bytes);
       return "{\"nodes\": [" + nodes + "{\"name\": \"last\"}]}\n";
     },
     [](const std::string& path) {
       KpjProject project;
       project.load(path, nullptr);
     }},
    {"html, one long line", 1, [](size_t bytes) { return repeated("x = a + b; ", bytes); }, readHtml},
    {"html, same-name methods", 1,
     [](size_t bytes) { return repeated("/** Stack::push Adds\n*/\nvoid Stack::push(int value)\n", bytes); },
     readHtml},
    {"html, classes of one file", 0.25,
     [](size_t bytes) {
       return numbered([](size_t i) { return "void C" + std::to_string(i) + "::run(int value)\n"; }, bytes);
     },
     readHtml},
    {"include scan", 1,
     [](size_t bytes) { return repeated("#include \"frame.h\"\n", bytes); },
     [](const std::string& path) {
       Tableau<String> includes;
       scanIncludes(fileBytes(path), &includes);
     }},
    {"source scanner", 1,
     [](size_t bytes) { return repeated("void Frame::Paint(int x)\n{\n  Paint(x - 1);\n}\n", bytes); },
     [](const std::string& path) {
       Tableau<Fnc> functions;
       scanFunctions(fileBytes(path), &functions);
     }},
    {"keyword extraction", 1,
     [](size_t bytes) { return repeated("int Stack::push(int v)\n{\n}\nvoid *alloc(size_t n)\n", bytes); },
     [](const std::string& path) { extractKeywords(fileBytes(path)); }},
    {"settings, one key", 1,
     [](size_t bytes) {
       return "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Bench]\r\n" +
              numbered([](size_t i) { return "\"Entry" + std::to_string(i) + "\"=\"value\"\r\n"; }, bytes);
     },
     [](const std::string& path) {
       RegeditDocument document;
       parseRegedit(fileBytes(path), &document, nullptr);
     }},
    {"resource script", 1,
     [](size_t bytes) {
       // Long menus and dialogs: every line is read by every pass, while the
       // classes emitted stay bounded by the tables' capacity.
       std::string script;
       for (int i = 0; i < 250; ++i) script += "#define IDC_C" + std::to_string(i) + " " + std::to_string(i) + "\r\n";
       script += "M MENU\r\n{\r\n" + repeated("    MENUITEM \"Item\", IDC_C1\r\n", bytes / 2) + "}\r\n";
       script += "DLG DIALOGEX 0, 0, 30, 20\r\nMENU M\r\n{\r\n";
       script += repeated("    CONTROL \"T\", IDC_C7, \"edit\", 0, 7, 7, 5, 1\r\n", bytes / 2) + "}\r\n";
       return script;
     },
     [](const std::string& path) {
       RcUnitText unit;
       readRcScript(fileBytes(path), &unit);
     }},
    {"version stamping", 1,
     [](size_t bytes) {
       return repeated("FILEVERSION 1,2,0,17\n   VALUE \"FileVersion\", \"1.2.0.17\\000\\000\"\nBLOCK\n", bytes);
     },
     [](const std::string& path) {
       int32_t build = 1;
       stampVersionText(fileBytes(path), &build);
     }},
};

// A field of /proc/self/status in kB, or 0.
size_t statusKilobytes(const char* field) {
  std::unique_ptr<OsFile> file = os().openFile("/proc/self/status", nullptr);
  if (!file) return 0;
  std::string text;
  char buffer[4096];
  size_t got = 0;
  while (file->read(buffer, sizeof buffer, &got, nullptr) && got > 0) text.append(buffer, got);
  size_t at = text.find(field);
  return at == std::string::npos ? 0 : std::strtoul(text.c_str() + at + std::strlen(field), nullptr, 10);
}

struct Run {
  double seconds = 0;
  double bytesPerByte = 0;
};

// The best time of three runs; memory from the first.
Run measure(const Reader& reader, const std::string& path, size_t size) {
  Run run;
  for (int attempt = 0; attempt < 3; ++attempt) {
    // Memory freed by the previous run would otherwise stay resident and be
    // reused unseen; "5" then resets the high-water mark to the resident size.
    malloc_trim(0);
    os().writeFile("/proc/self/clear_refs", "5", nullptr);
    size_t before = statusKilobytes("VmRSS:");
    auto start = std::chrono::steady_clock::now();
    reader.read(path);
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (attempt == 0) {
      size_t peak = statusKilobytes("VmHWM:");
      run.bytesPerByte = peak > before ? (peak - before) * 1024.0 / static_cast<double>(size) : 0.0;
      run.seconds = seconds;
    }
    run.seconds = std::min(run.seconds, seconds);
  }
  return run;
}

}  // namespace

int main(int argc, char** argv) {
  // A fixed threshold: glibc's moving one would serve large buffers from a heap
  // that a previous run left resident.
  mallopt(M_MMAP_THRESHOLD, 128 * 1024);
  double megabytes = 4;
  std::string dir = "/tmp";
  for (int i = 1; i + 1 < argc; i += 2) {
    if (std::strcmp(argv[i], "--megabytes") == 0) megabytes = std::atof(argv[i + 1]);
    if (std::strcmp(argv[i], "--dir") == 0) dir = argv[i + 1];
  }
  std::string path = joinPath(dir, "reader_scaling_bench.input");
  std::printf("%-26s %9s %9s %9s %7s %7s %9s %9s %9s\n", "reader", "1x s", "4x s", "16x s", "4x/1x", "16x/4x",
              "1x B/B", "4x B/B", "16x B/B");
  bool linear = true;
  for (const Reader& reader : kReaders) {
    Run runs[3];
    for (int scale = 0; scale < 3; ++scale) {
      size_t size = 0;
      {
        std::string text = reader.input(static_cast<size_t>(megabytes * reader.share * 1e6) << (2 * scale));
        size = text.size();
        std::string err;
        if (!os().writeFile(path, text, &err)) {
          std::fprintf(stderr, "%s\n", err.c_str());
          return 1;
        }
      }
      runs[scale] = measure(reader, path, size);
    }
    double first = runs[1].seconds / std::max(runs[0].seconds, 1e-6);
    double second = runs[2].seconds / std::max(runs[1].seconds, 1e-6);
    linear = linear && first <= 5 && second <= 5;
    std::printf("%-26s %9.3f %9.3f %9.3f %7.1f %7.1f %9.1f %9.1f %9.1f\n", reader.name, runs[0].seconds,
                runs[1].seconds, runs[2].seconds, first, second, runs[0].bytesPerByte, runs[1].bytesPerByte,
                runs[2].bytesPerByte);
  }
  os().removeFile(path, nullptr);
  std::printf("%s\n", linear ? "every reader within 5x per 4x" : "a reader grew faster than 5x per 4x");
  return linear ? 0 : 1;
}
