// The confirmation shown before a delivery: what goes where, and whether to mail the report.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "delivery/delivery_selection.h"

class DeliveryConfirmation {
 public:
  static constexpr const char* kTitle = "Kesto Delivery";

  // Mailing starts checked when the project has recipients.
  DeliveryConfirmation(const Tableau<Livrage>& deliveries, bool hasRecipients);

  // One row a file: "NAME -> DIRECTORY".
  const std::vector<std::string>& rows() const { return rows_; }
  bool sendMail() const { return sendMail_; }
  void setSendMail(bool send) { sendMail_ = send; }

 private:
  std::vector<std::string> rows_;
  bool sendMail_;
};

// A host's view of the confirmation: true to proceed, false to cancel.
using ConfirmDelivery = std::function<bool(DeliveryConfirmation&)>;
