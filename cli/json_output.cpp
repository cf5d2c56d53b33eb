// One writer for every --json document, so that all share their form.
#include "cli/json_output.h"

#include <iostream>

void addJsonFlag(CLI::App& command, bool& json) {
  command.add_flag("--json", json, "Print one JSON document instead of lines");
}

void printJson(const JsonDocument& document) {
  std::cout << document.dump(2, ' ', false, JsonDocument::error_handler_t::replace) << '\n';
}
