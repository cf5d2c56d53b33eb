// Driving an options page as its view does.
#pragma once

#include <gtest/gtest.h>

#include "project/option_page.h"

// The field bound to control id; a test failure when the page has none.
inline PageControl bound(OptionPage& page, int32_t id) {
  for (const PageControl& control : page.controls())
    if (control.id == id) return control;
  ADD_FAILURE() << "no control " << id;
  return PageControl{id, PageControlKind::Button, ""};
}
