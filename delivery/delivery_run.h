// The delivery tool: select, confirm, copy, report by mail.
#pragma once

#include "delivery/delivery_confirmation.h"
#include "delivery/delivery_group.h"
#include "delivery/mail.h"
#include "project/host.h"

enum class DeliveryOutcome {
  NothingToDeliver,  // "No files to deliver !"
  Refused,           // a delivery directory is missing
  Cancelled,         // the confirmation was cancelled
  Delivered,         // every file copied, and mailed when asked
  MailFailed,        // every file copied, but the mail did not go out
  Failed,            // at least one copy failed
};

// The groups of the open project and the runs over them.
class Delivery {
 public:
  Tableau<OneDelRep> groups;

  // The groups of a project being opened; emptied when it closes.
  void load(const ProjectOptions& options) { loadDeliveryGroups(groups, options); }

  // Selects the files, asks confirm, copies them and mails the report when the
  // confirmation says so; every box and status text on the way is shown. The
  // mail carries the ended-task notes when includeTaskNotes ("Tasks": MainOn and KeyIsDelivery).
  DeliveryOutcome run(Host& host, Mail& mail, bool includeTaskNotes, const ConfirmDelivery& confirm);
};
