// The add-on's one mail object: the project's recipients, the copied list and
// the sending of a plain-text note through the host's transport.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/kstring.h"
#include "foundation/tableau.h"
#include "project/host.h"

class Mail {
 public:
  Ensemble<String> copiedRecipients;  // pasted into another project's list on the options page
  Ensemble<String> recipients;        // the open project's, in order, as typed
  int32_t control = 0;                // show the mail before it goes ("Mail"/"Control")

  void loadSettings();
  void saveSettings();

  std::vector<std::string> recipientTexts() const;
  void setRecipients(const std::vector<std::string>& texts);

  // Sends subject and note to every recipient (none is allowed). When
  // includeFile is not empty and can be read, its lines follow the body and
  // the file is deleted once the mail is sent. Returns 1 when sent, 0
  // otherwise; a missing transport is reported here, other failures by the caller.
  int send(Host& host, const std::string& subject, const std::string& body, const std::string& includeFile);
};

// The body, then, when the file can be read, its lines, 70 hyphens and the closing line.
std::string buildMailNote(const std::string& body, const std::string& includeFile);
