// The pages of the documentation site, as texts in the Windows Latin-1 code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "html/ht_build.h"
#include "html/ht_model.h"

// Raise it with any change to the bytes of a page: a site recorded under
// another number is written again even when its sources are the same.
constexpr uint64_t kHtPagesFormat = 1;

// Receives each page in the order of writing. A page it cannot keep is its own
// business: the writing goes on with the next one.
class htPageSink {
 public:
  virtual ~htPageSink() = default;
  virtual void onPage(const std::string& fileName, const std::string& text) = 0;
};

// "Documentation " + P + ".html": the page that opens the site.
std::string htFramesetFileName(const std::string& projectName);

// The names of the pages a site writes more than once (two files of the same
// name in different directories), with how many times: the last text stays.
std::map<std::string, size_t> htRepeatedPageNames(const htProjet& project);

// Writes every page of a sorted project: frameset, title, project contents, file
// list, project presentation, each file's contents and presentation, then the
// class, function and macro pages. False when a consistency check stopped it
// (the box has been shown).
bool writeHtSite(htProjet& project, htPageSink& sink, const htProgress& progress = nullptr);
