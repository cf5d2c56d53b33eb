// Integers typed on the command line mean what they say.
#include "cli/integer_options.h"

#include <limits>

bool isDecimalInt32(const std::string& text) {
  size_t first = !text.empty() && text[0] == '-' ? 1 : 0;
  // Eleven characters hold every int32_t; more digits are out of range anyway.
  if (first == text.size() || text.size() > 11) return false;
  for (size_t i = first; i < text.size(); ++i)
    if (text[i] < '0' || text[i] > '9') return false;
  long long value = std::stoll(text);
  return value >= std::numeric_limits<int32_t>::min() && value <= std::numeric_limits<int32_t>::max();
}

CLI::Option* addIntegerOption(CLI::App& command, const std::string& name, int32_t& value, const std::string& help,
                              int32_t minimum) {
  static const CLI::Validator kDecimal(
      [](std::string& text) { return isDecimalInt32(text) ? std::string() : text + " is not a decimal integer"; },
      "INT", "decimal");
  // The bounds are given as integers so that the range error names them in plain numbers.
  return command.add_option(name, value, help)
      ->check(kDecimal)
      ->check(CLI::Range(minimum, std::numeric_limits<int32_t>::max()));
}
