// Slot management, file form and sorting of BasicTableau.
#include "foundation/tableau.h"

#include <cstdlib>
#include <cstring>

namespace {

// Reading never opens more slots than this unless the stream really holds
// that many bytes, so a corrupt count cannot exhaust memory.
constexpr int32_t kPlausibleCount = 1 << 16;

int compareText(const void* a, const void* b) {
  Basic* left = *static_cast<Basic* const*>(a);
  Basic* right = *static_cast<Basic* const*>(b);
  const unsigned char* x = reinterpret_cast<const unsigned char*>(static_cast<char*>(*left));
  const unsigned char* y = reinterpret_cast<const unsigned char*>(static_cast<char*>(*right));
  while (*x && *x == *y) ++x, ++y;
  return static_cast<int>(*x) - static_cast<int>(*y);
}

int compareNumber(const void* a, const void* b) {
  Basic* left = *static_cast<Basic* const*>(a);
  Basic* right = *static_cast<Basic* const*>(b);
  long int difference = static_cast<long int>(*left) - static_cast<long int>(*right);
  return difference < 0 ? -1 : (difference > 0 ? 1 : 0);
}

}  // namespace

BasicTableau::BasicTableau() : items_(nullptr), step_(10), capacity_(0), count_(0), owns_(1) {}

BasicTableau::~BasicTableau() { removeRange(0, 0); }

bool BasicTableau::reserve(int32_t n) {
  if (capacity_ >= n) return true;
  void* block = items_ ? std::realloc(items_, sizeof(Basic*) * static_cast<size_t>(n))
                       : std::malloc(sizeof(Basic*) * static_cast<size_t>(n));
  if (!block) return false;
  items_ = static_cast<Basic**>(block);
  capacity_ = n;
  return true;
}

bool BasicTableau::insert(int32_t position, Basic* element) {
  if (position < 0 || position > count_) return false;
  if (capacity_ < count_ + 1 && !reserve(capacity_ + step_)) return false;
  std::memmove(items_ + position + 1, items_ + position, sizeof(Basic*) * static_cast<size_t>(count_ - position));
  items_[position] = element;
  ++count_;
  return true;
}

Basic* BasicTableau::remove(int32_t position) {
  Basic* removed = items_[position];
  std::memmove(items_ + position, items_ + position + 1, sizeof(Basic*) * static_cast<size_t>(count_ - position - 1));
  --count_;
  shrinkAfterRemoval();
  return removed;
}

void BasicTableau::removeAndDelete(int32_t position) {
  Basic* removed = remove(position);
  if (owns_ && removed) delete removed;
}

void BasicTableau::shrinkAfterRemoval() {
  if (count_ >= capacity_ - step_) return;
  if (count_ == 0) {
    // Released so that the next insertion allocates a fresh array.
    std::free(items_);
    items_ = nullptr;
    capacity_ = 0;
    return;
  }
  void* block = std::realloc(items_, sizeof(Basic*) * static_cast<size_t>(capacity_ - step_));
  if (!block) return;
  items_ = static_cast<Basic**>(block);
  capacity_ -= step_;
}

int32_t BasicTableau::indexOf(const Basic* element) const {
  for (int32_t i = 0; i < count_; ++i)
    if (items_[i] == element) return i;
  return kNotFound;
}

void BasicTableau::removeRange(int32_t from, int32_t n) {
  if (from < 0 || from > count_ || n < 0) return;
  if (n == 0 || from + n > count_) n = count_ - from;
  if (owns_)
    for (int32_t i = from; i < from + n; ++i)
      if (items_[i]) delete items_[i];
  // This bound is exact for ranges that start at 0 or end at the table's end,
  // the only ones callers use.
  for (int32_t i = from; i < count_ - (from + n); ++i) items_[i] = items_[i + n];
  count_ -= n;
  if (count_ == 0) {
    std::free(items_);
    items_ = nullptr;
    capacity_ = 0;
    return;
  }
  int32_t wanted = (count_ / step_ + 1) * step_;
  if (wanted >= capacity_) return;
  void* block = std::realloc(items_, sizeof(Basic*) * static_cast<size_t>(wanted));
  if (!block) return;
  items_ = static_cast<Basic**>(block);
  capacity_ = wanted;
}

bool BasicTableau::openGap(int32_t at, int32_t n) {
  if (n <= 0) return true;
  if (at < 0 || at > count_ || n > INT32_MAX - count_ - step_) return false;
  if (capacity_ < count_ + n && !reserve(((count_ + n) / step_ + 1) * step_)) return false;
  std::memmove(items_ + at + n, items_ + at, sizeof(Basic*) * static_cast<size_t>(count_ - at));
  for (int32_t i = at; i < at + n; ++i) items_[i] = nullptr;
  count_ += n;
  return true;
}

void BasicTableau::swapWithNext(int32_t position) {
  Basic* first = items_[position];
  items_[position] = items_[position + 1];
  items_[position + 1] = first;
}

void BasicTableau::sort(Comparison comparison, int32_t from, int32_t n) {
  if (count_ == 0 || from < 0 || from >= count_ || n < 0) return;
  if (n == 0 || from + n > count_) n = count_ - from;
  std::qsort(items_ + from, static_cast<size_t>(n), sizeof(Basic*), comparison);
}

void BasicTableau::sortByText(int32_t from, int32_t n) { sort(compareText, from, n); }

void BasicTableau::sortByNumber(int32_t from, int32_t n) { sort(compareNumber, from, n); }

int BasicTableau::fWrite(ByteStream& file) {
  if (!writeI32(file, count_)) return 0;
  for (int32_t i = 0; i < count_; ++i)
    if (!items_[i] || !items_[i]->fWrite(file)) return 0;
  return 1;
}

bool BasicTableau::beginRead(ByteStream& file) {
  removeRange(0, 0);
  int32_t stored = 0;
  if (!readI32(file, &stored) || stored < 0) return false;
  if (stored > kPlausibleCount && static_cast<size_t>(stored) > file.remaining()) return false;
  return openGap(0, stored);
}
