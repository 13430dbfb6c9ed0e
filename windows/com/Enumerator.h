// The standard enumerators, over a list that was taken when the enumerator was made.
#pragma once

#include <atomic>
#include <new>
#include <vector>

#include "windows/com/Module.h"

namespace nv::windows {

/// @tparam Interface the enumerator's interface. @tparam Item what it hands out. @tparam Entry what the list holds.
/// @tparam handOut turns an entry into an item whose references belong to the caller.
template <class Interface, class Item, class Entry, Item (*handOut)(const Entry&)>
class Enumerator : public Interface {
 public:
  static HRESULT create(std::vector<Entry> entries, Interface** result) {
    *result = new (std::nothrow) Enumerator(std::move(entries), 0);
    return *result == nullptr ? E_OUTOFMEMORY : S_OK;
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != __uuidof(Interface)) return E_NOINTERFACE;
    *object = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++references_); }
  STDMETHODIMP_(ULONG) Release() override {
    const long left = --references_;
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

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
    try {
      *clone = new Enumerator(entries_, next_);
      return S_OK;
    } catch (const std::bad_alloc&) {
      *clone = nullptr;
      return E_OUTOFMEMORY;
    }
  }

 private:
  Enumerator(std::vector<Entry> entries, std::size_t next) : entries_(std::move(entries)), next_(next) {}
  virtual ~Enumerator() = default;

  ModuleReference module_;
  std::atomic<long> references_ = 1;
  std::vector<Entry> entries_;
  std::size_t next_;
};

}  // namespace nv::windows
