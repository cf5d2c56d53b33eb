// Completion on one million keywords: how long loading takes and how many
// prefix lookups run per second (target: one lookup well under a millisecond).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "foundation/os.h"

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

std::string randomIdentifier(std::mt19937& random) {
  static const char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789";
  std::uniform_int_distribution<int> length(4, 20);
  std::uniform_int_distribution<int> letter(0, 51);  // no leading digit
  std::uniform_int_distribution<int> any(0, 62);
  std::string word(1, kLetters[letter(random)]);
  for (int i = length(random); i > 1; --i) word += kLetters[any(random)];
  return word;
}

}  // namespace

int main() {
  constexpr int kKeywords = 1000000;
  constexpr int kLookups = 200000;
  std::mt19937 random(20261122);
  std::vector<std::string> words;
  std::string file;
  for (int i = 0; i < kKeywords; ++i) {
    words.push_back(randomIdentifier(random));
    file += words.back();
    if (i % 4 == 0) file += "|description of " + words.back() + " (%d items)";
    file += "\r\n";
  }
  std::string path = joinPath(os().currentDirectory(), "completion_bench.kwd");
  std::string err;
  if (!os().writeFile(path, file, &err)) {
    std::fprintf(stderr, "%s\n", err.c_str());
    return 1;
  }

  CompletionEngine engine;
  engine.files = {path};
  Clock::time_point start = Clock::now();
  engine.load(&err);
  double loadSeconds = secondsSince(start);
  os().removeFile(path, nullptr);
  std::printf("keywords loaded: %zu from %.1f MB in %.3f s\n", engine.keywordCount(), file.size() / 1e6, loadSeconds);

  std::vector<std::string> prefixes;
  std::uniform_int_distribution<int> pick(0, kKeywords - 1);
  std::uniform_int_distribution<int> cut(1, 8);
  for (int i = 0; i < kLookups; ++i) {
    const std::string& word = words[static_cast<size_t>(pick(random))];
    prefixes.push_back(word.substr(0, std::min<size_t>(word.size(), static_cast<size_t>(cut(random)))));
  }
  size_t matched = 0;
  std::vector<double> times;
  std::string text;
  start = Clock::now();
  for (const std::string& prefix : prefixes) {
    Clock::time_point one = Clock::now();
    if (engine.complete(prefix, &text) != kNoMatch) ++matched;
    times.push_back(secondsSince(one));
  }
  double lookupSeconds = secondsSince(start);
  std::sort(times.begin(), times.end());
  std::printf("Complete(prefix of 1-8 characters): %.0f lookups/s, %.2f us average, %.2f us at the 99.9th percentile, "
              "%.2f us slowest (%zu of %d matched)\n",
              kLookups / lookupSeconds, lookupSeconds / kLookups * 1e6, times[times.size() * 999 / 1000] * 1e6,
              times.back() * 1e6, matched, kLookups);

  start = Clock::now();
  for (const std::string& prefix : prefixes) completeAtCaret(engine, "  x = " + prefix, static_cast<int32_t>(prefix.size()) + 7);
  lookupSeconds = secondsSince(start);
  std::printf("completion command on a line: %.0f requests/s, %.2f us average\n", kLookups / lookupSeconds,
              lookupSeconds / kLookups * 1e6);
  return 0;
}
