// Documentation generation on a worker thread, so that the IDE stays responsive.
#pragma once

#include <string>

// Refused with "HTML generation in progress" while one runs; otherwise starts
// a thread that writes the site of directory and ends by itself.
void startHtmlGenerationThread(const std::string& directory, const std::string& filters, const std::string& name);
// Waits for the last generation started to end: the thread runs the DLL's code,
// which must not be unloaded under it.
void waitForHtmlGeneration();
