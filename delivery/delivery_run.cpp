// One delivery from selection to mail.
#include "delivery/delivery_run.h"

#include "delivery/delivery_copy.h"
#include "foundation/alert.h"
#include "foundation/os.h"
#include "project/project_files.h"

DeliveryOutcome Delivery::run(Host& host, Mail& mail, bool includeTaskNotes, const ConfirmDelivery& confirm) {
  const std::string projectFile = host.projectFile();
  Tableau<Livrage> deliveries;
  if (!selectDeliveries(groups, host.projectRoot(), projectDirectoryOf(projectFile), &deliveries))
    return DeliveryOutcome::Refused;
  if (deliveries.count() == 0) {
    host.addMessage(kDeliveryGroup, 0, "No files to deliver !");
    alert("No files to deliver !", "Warning", kAlertIconInformation);
    return DeliveryOutcome::NothingToDeliver;
  }
  DeliveryConfirmation confirmation(deliveries, mail.recipients.count() > 0);
  if (!confirm(confirmation)) return DeliveryOutcome::Cancelled;

  host.setBusy(true);
  DeliveryReport report = copyDeliveries(host, deliveries);
  host.setBusy(false);
  if (report.failed) return DeliveryOutcome::Failed;
  if (!report.text.empty() && !report.subject.empty() && confirmation.sendMail()) {
    const std::string notes = includeTaskNotes ? notificationFilePath(projectFile) : std::string();
    if (!mail.send(host, report.subject, report.text, notes)) {
      alert("MAPI SendMail missed !", "Kesto AddOn error", kAlertIconHand);
      return DeliveryOutcome::MailFailed;
    }
  }
  return DeliveryOutcome::Delivered;
}
