// The record a generation leaves in the site directory: a digest of what the
// site was made from, and each page as it was left. A later generation with the
// same inputs and every page as recorded has nothing to do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct htRecordedPage {
  std::string name;
  uint64_t size = 0;
  int64_t modified = 0;
};

struct htSiteRecord {
  std::string inputs;  // ContentDigest::hex of the inputs
  std::vector<htRecordedPage> pages;
};

// A hidden file of the site directory: no page, and no walk of the sources takes it.
std::string htSiteRecordPath(const std::string& siteDirectory);

// False when there is none or it cannot be read as a record: the site is then written again.
bool readHtSiteRecord(const std::string& siteDirectory, htSiteRecord* record);
bool writeHtSiteRecord(const std::string& siteDirectory, const htSiteRecord& record, std::string* err);

// True when every recorded page is on disk with its recorded size and time.
bool htRecordedPagesIntact(const std::string& siteDirectory, const htSiteRecord& record);
