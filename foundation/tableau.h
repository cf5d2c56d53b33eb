// Growable arrays of Basic pointers: BasicTableau, and its typed fronts Tableau<T> and Ensemble<T>.
#pragma once

#include <cstdint>

#include "foundation/basic.h"
#include "foundation/binary_io.h"

// Slots grow and shrink by a fixed step (10), never by doubling. When owns is
// set (the default) the table deletes its elements on removal with deletion,
// on range removal and on destruction. Positions are 0-based and unchecked
// unless said otherwise.
class BasicTableau : public Basic {
 public:
  static constexpr int32_t kNotFound = 65535;  // index-of sentinel; callers test this, never -1
  using Comparison = int (*)(const void* slotA, const void* slotB);  // qsort over Basic* slots

  BasicTableau();
  BasicTableau(const BasicTableau&) = delete;
  BasicTableau& operator=(const BasicTableau&) = delete;
  ~BasicTableau() override;

  int32_t count() const { return count_; }
  int32_t capacity() const { return capacity_; }
  int32_t step() const { return step_; }
  void setStep(int32_t step) { step_ = step > 0 ? step : 1; }
  bool owns() const { return owns_ != 0; }
  void setOwns(bool owns) { owns_ = owns ? 1 : 0; }

  Basic* at(int32_t position) const { return items_[position]; }
  // Inserting at count appends. Returns false only when memory runs out.
  bool insert(int32_t position, Basic* element);
  bool append(Basic* element) { return insert(count_, element); }
  // Returns the removed pointer without deleting it.
  Basic* remove(int32_t position);
  // As remove, then deletes the element when owns is set.
  void removeAndDelete(int32_t position);
  // By pointer identity; kNotFound when absent.
  int32_t indexOf(const Basic* element) const;
  // n = 0 means to the end. Deletes the range's elements when owns is set.
  void removeRange(int32_t from, int32_t n);
  void clear() { removeRange(0, 0); }
  // Opens slots for n elements in one allocation when fewer are open, so that a
  // caller that knows its count avoids regrowing by the step. False when memory
  // runs out (table unchanged).
  bool reserve(int32_t n);
  // Makes room for n null slots at `at`. False when memory runs out (table unchanged).
  bool openGap(int32_t at, int32_t n);
  // Stores without deleting the old pointer.
  void set(int32_t position, Basic* element) { items_[position] = element; }
  void swapWithNext(int32_t position);
  // n = 0 means to the end; not stable.
  void sortByText(int32_t from = 0, int32_t n = 0);
  void sortByNumber(int32_t from = 0, int32_t n = 0);
  void sort(Comparison comparison, int32_t from = 0, int32_t n = 0);

  // File form: the count as signed 32-bit, then each element's own form.
  int fWrite(ByteStream& file) override;

 protected:
  // Shared by Tableau<T>::fRead: clears, reads the count and opens that many null slots.
  bool beginRead(ByteStream& file);

 private:
  void shrinkAfterRemoval();

  Basic** items_;
  int32_t step_;
  int32_t capacity_;
  int32_t count_;
  int32_t owns_;
};

// A table of T that can rebuild itself from a file.
template <typename T>
class Tableau : public BasicTableau {
 public:
  T* operator[](int32_t position) const { return static_cast<T*>(at(position)); }

  // Reads the count, opens that many null slots, then reads each element with
  // T's default constructor. Stops at the first failure: later slots stay null.
  int fRead(ByteStream& file) override {
    if (!beginRead(file)) return 0;
    for (int32_t i = 0; i < count(); ++i) {
      T* element = new T();
      if (!element->fRead(file)) {
        delete element;
        return 0;
      }
      set(i, element);
    }
    return 1;
  }
};

// A table of T assembled in memory only: reading it reports the pure call.
template <typename T>
class Ensemble : public BasicTableau {
 public:
  T* operator[](int32_t position) const { return static_cast<T*>(at(position)); }
};
