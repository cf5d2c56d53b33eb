// The rows of the delivery confirmation.
#include "delivery/delivery_confirmation.h"

#include "foundation/os.h"

DeliveryConfirmation::DeliveryConfirmation(const Tableau<Livrage>& deliveries, bool hasRecipients)
    : sendMail_(hasRecipients) {
  for (int32_t i = 0; i < deliveries.count(); ++i)
    rows_.push_back(fileNameOf(deliveries[i]->source.str()) + " -> " + deliveries[i]->directory.str());
}
