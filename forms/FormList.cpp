#include "forms/FormList.h"

#include <algorithm>

#include "forms/Form.h"

namespace nv::forms {

void FormList::remove(const Form& form) {
  if (active_ == &form) active_ = nullptr;
  std::erase_if(forms_, [&form](const auto& loaded) { return loaded.get() == &form; });
}

void FormList::unloadAll(std::wstring_view name) const {
  auto forms = all();
  std::ranges::reverse(forms);
  for (const auto& form : forms) {
    if (form->name() == name) form->unload();
  }
}

}  // namespace nv::forms
