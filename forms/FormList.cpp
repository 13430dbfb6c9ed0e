#include "forms/FormList.h"

#include "forms/Form.h"

namespace nv::forms {

void FormList::remove(const Form& form) {
  if (active_ == &form) active_ = nullptr;
  std::erase_if(forms_, [&form](const auto& loaded) { return loaded.get() == &form; });
}

void FormList::unloadAll(std::wstring_view name) const {
  for (const auto& form : all()) {
    if (form->name() == name) form->unload();
  }
}

}  // namespace nv::forms
