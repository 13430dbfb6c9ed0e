#include "forms/FormList.h"

#include <ranges>

#include "forms/Form.h"

namespace nv::forms {

void FormList::remove(const Form& form) {
  if (active_ == &form) active_ = nullptr;
  std::erase_if(forms_, [&form](const auto& loaded) { return loaded.get() == &form; });
}

void FormList::unloadAll(std::wstring_view name) const {
  const auto forms = all();
  for (const auto& form : std::views::reverse(forms)) {
    if (form->name() == name) form->unload();
  }
}

}  // namespace nv::forms
