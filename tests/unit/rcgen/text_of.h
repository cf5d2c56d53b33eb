// Reading back the text files that the generator and the stamping write.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/temp_dir.h"

// The file as text: the platform's line ends read back as "\n".
inline std::string textOf(const TempDir& dir, const std::string& relative) {
  std::string text;
  EXPECT_TRUE(platformOs().readTextFile(dir.file(relative), &text, nullptr)) << relative;
  return text;
}
