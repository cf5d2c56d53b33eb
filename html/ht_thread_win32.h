// Documentation generation on a worker thread, so that the IDE stays responsive.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

// Posted to the window that started a generation when sources were left out of
// the site; lParam is a std::string that the receiver takes (takeHtmlReport).
constexpr UINT kHtmlReportMessage = WM_USER + 9;

// Refused with "HTML generation in progress" while one runs; otherwise starts
// a thread that writes the site of directory and ends by itself, telling
// notify (on its own thread) what it left out, for the status line.
void startHtmlGenerationThread(const std::string& directory, const std::string& filters, const std::string& name,
                               HWND notify);
// The text of a kHtmlReportMessage, owned from now on.
std::unique_ptr<std::string> takeHtmlReport(LPARAM lParam);
// Waits for the last generation started to end: the thread runs the DLL's code,
// which must not be unloaded under it.
void waitForHtmlGeneration();
