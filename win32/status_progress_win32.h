// The progress bar that long copies draw over the IDE's status window.
#pragma once

#include <cstdint>
#include <string>

// Fills the status window's client area, less 90 pixels of width, in proportion
// of done to total in blue, with item centred over it. Nothing without a status window.
void drawStatusProgress(uint64_t done, uint64_t total, const std::string& item);
// Repaints the status window, which removes the bar.
void endStatusProgress();
