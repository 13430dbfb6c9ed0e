// Values of the record that are stored before the biller is accepted, and taken back when it is not.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "component/core/Store.h"

namespace nv {

class ProvisionalValues {
 public:
  explicit ProvisionalValues(Store& store) : store_(store) {}

  void put(std::wstring Store::*member, std::wstring value) {
    stored_.push_back({member, store_.*member, value});
    store_.*member = std::move(value);
  }

  /// They are the record's from now on.
  void keep() { stored_.clear(); }

  /// The record has its former values again, but for what its host has put there meanwhile.
  void takeBack() noexcept {
    for (; !stored_.empty(); stored_.pop_back()) {
      Stored& last = stored_.back();
      if (store_.*last.member == last.value) store_.*last.member = std::move(last.before);
    }
  }

 private:
  struct Stored {
    std::wstring Store::*member;
    std::wstring before;
    std::wstring value;
  };

  Store& store_;
  std::vector<Stored> stored_;
};

}  // namespace nv
