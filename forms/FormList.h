// The loaded forms of a component, and which of them is the active one. Holding them here keeps loaded forms alive.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace nv::forms {

class Form;

class FormList {
 public:
  void add(std::shared_ptr<Form> form) { forms_.push_back(std::move(form)); }
  void remove(const Form& form);

  /// A copy, so that forms may come and go while a caller walks through it.
  std::vector<std::shared_ptr<Form>> all() const { return forms_; }
  bool empty() const { return forms_.empty(); }

  /// Unloads, as by code, every form of this name, the last loaded first: one that stands over another would go with
  /// its window otherwise, and not by code.
  void unloadAll(std::wstring_view name) const;

  /// The form that the user last worked in. Message boxes and the host's own windows do not change it.
  const Form* active() const { return active_; }
  void setActive(const Form* form) { active_ = form; }

 private:
  std::vector<std::shared_ptr<Form>> forms_;
  const Form* active_ = nullptr;
};

}  // namespace nv::forms
