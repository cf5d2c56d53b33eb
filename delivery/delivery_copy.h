// Copying the selected files into their delivery directories, with the message group and the report.
#pragma once

#include <string>

#include "delivery/delivery_selection.h"
#include "foundation/os.h"
#include "project/host.h"

// The message window's group of deliveries.
extern const MessageGroup kDeliveryGroup;

// "demo : 2 files (3/5/2024 , 2:07:09 PM)": the main window's title after its
// first "-", the count, and the moment.
std::string deliveryHeader(const std::string& mainWindowTitle, int32_t files, const SystemTime& now);

struct DeliveryReport {
  bool failed = false;   // at least one copy failed; the others were still made
  std::string subject;   // "Delivery : " and the header
  std::string text;      // "SOURCE delivered to DIRECTORY" lines
};

// Copies every record with one progress for the whole run, each failure shown
// in a box, each success a message under the header; ends with "Delivery terminated".
DeliveryReport copyDeliveries(Host& host, Tableau<Livrage>& deliveries);
