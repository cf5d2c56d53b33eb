// One generation of the documentation site: the guard, the site directory, the
// pages on disk, and opening the result.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "html/ht_build.h"

// The site directory: "kHTML" under the project directory.
std::string htSiteDirectory(const std::string& projectDirectory);
// P: the project file's name without its directory and its last four characters.
std::string htProjectName(const std::string& projectFile);
std::string htFramesetPath(const std::string& projectDirectory, const std::string& projectName);

// True while a generation runs anywhere in the process.
bool htmlGenerationRunning();
// When a generation runs, shows "HTML generation in progress" (Warning) and
// returns true: the caller then starts nothing.
bool refuseWhileHtmlGenerationRuns();

struct htGenerationResult {
  size_t pagesWritten = 0;
  size_t pagesUnchanged = 0;  // already on disk with the same bytes, left alone
  size_t pagesSkipped = 0;  // pages that could not be created
  std::string firstSkipped;  // the first of them with the system's reason
  std::vector<SkippedPath> sourcesSkipped;  // sources left out of the site, with why
};

// The work of one generation, counted as running from start to end: builds the
// model of directory with the filters, writes every page into the site
// directory (created if missing; pages overwritten unless they already hold the
// same bytes), frees the model. A page that cannot be created is skipped. When the
// site's record (ht_site_record.h) holds the digest of the same inputs and every
// page is as recorded, nothing is written. False when a consistency check stopped it.
bool runHtmlGeneration(const std::string& directory, const std::string& filters, const std::string& projectName,
                       htGenerationResult* result, const htProgress& progress = nullptr);

// Opens the frameset with the desktop's opener.
bool openHtmlDocumentation(const std::string& projectDirectory, const std::string& projectName, std::string* err);
