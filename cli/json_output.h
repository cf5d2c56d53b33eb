// --json on the list commands: one JSON document on standard output.
#pragma once

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

using JsonDocument = nlohmann::ordered_json;

void addJsonFlag(CLI::App& command, bool& json);

// Bytes that are not UTF-8 (sources in a Windows code page) become U+FFFD:
// the document stays valid JSON, whatever the files held.
void printJson(const JsonDocument& document);
