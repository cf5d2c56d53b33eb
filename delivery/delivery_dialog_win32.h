// The delivery's confirmation dialog, a view over its presenter.
#pragma once

#include <windows.h>

#include "delivery/delivery_confirmation.h"

// Shows "FenetreConfirmation" modally; true when the user chose "Proceed".
bool showDeliveryConfirmation(HINSTANCE instance, HWND owner, DeliveryConfirmation& confirmation);
