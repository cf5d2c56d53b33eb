// Moving many new elements into a table at once: a table grows by ten slots at a
// time, so appending a large search result one by one would copy it over and over.
#pragma once

#include <memory>
#include <vector>

#include "foundation/tableau.h"

// Appends items in order, handing them to the table; false (items deleted)
// when memory runs out.
template <typename T>
bool appendAll(Tableau<T>* table, std::vector<std::unique_ptr<T>>* items) {
  int32_t first = table->count();
  if (!table->openGap(first, static_cast<int32_t>(items->size()))) {
    items->clear();
    return false;
  }
  for (size_t i = 0; i < items->size(); ++i) table->set(first + static_cast<int32_t>(i), (*items)[i].release());
  items->clear();
  return true;
}
