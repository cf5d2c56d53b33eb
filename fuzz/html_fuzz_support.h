// What the HTML fuzz targets share: a consistency check is a finding, pages go nowhere.
#pragma once

#include <cstdlib>
#include <string>

#include "foundation/alert.h"
#include "html/ht_pages.h"

// Real code must never reach a consistency check: any box is a finding.
class AbortOnAlert : public AlertHandler {
 public:
  int show(const std::string&, const std::string&, unsigned) override { std::abort(); }
};

class DiscardPages : public htPageSink {
 public:
  void onPage(const std::string&, const std::string&) override {}
};
