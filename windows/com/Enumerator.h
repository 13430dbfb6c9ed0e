// The standard enumerators, over a copy of the list.
#pragma once

#include <vector>

#include "windows/com/ComObject.h"
#include "windows/com/Marshal.h"

namespace nv::windows {

/// @tparam Interface the enumerator's interface. @tparam Item what it hands out. @tparam Entry what the list holds.
/// @tparam handOut turns an entry into an item whose references belong to the caller.
template <class Interface, class Item, class Entry, Item (*handOut)(const Entry&)>
class Enumerator final : public ComObject<Interface> {
 public:
  explicit Enumerator(std::vector<Entry> entries, std::size_t next = 0) : entries_(std::move(entries)), next_(next) {}

  STDMETHODIMP Next(ULONG wanted, Item* items, ULONG* fetched) override {
    if (items == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
    ULONG count = 0;
    for (; count < wanted && next_ < entries_.size(); ++count, ++next_) items[count] = handOut(entries_[next_]);
    if (fetched != nullptr) *fetched = count;
    return count == wanted ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = entries_.size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** clone) override {
    if (clone == nullptr) return E_POINTER;
    *clone = nullptr;
    return guarded([&] { *clone = new Enumerator(entries_, next_); });
  }

 private:
  std::vector<Entry> entries_;
  std::size_t next_;
};

}  // namespace nv::windows
