#include "windows/forms/EditText.h"

namespace nv::windows {

using forms::Attribute;

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size() + 1))));
  return text;
}

void EditText::connect(HWND edit) {
  edit_ = edit;
  apply(Attribute::limit);
  apply(Attribute::text);
}

bool EditText::apply(Attribute attribute) {
  switch (attribute) {
    case Attribute::text: {
      const auto code = setByCode();
      SetWindowTextW(edit_, field_.text().c_str());
    }
      [[fallthrough]];
    case Attribute::selection: {
      const forms::Selection selection = field_.lastSelection();
      SendMessageW(edit_, EM_SETSEL, static_cast<WPARAM>(selection.start), selection.start + selection.length);
      SendMessageW(edit_, EM_SCROLLCARET, 0, 0);
      return true;
    }
    case Attribute::limit:
      SendMessageW(edit_, EM_LIMITTEXT, static_cast<WPARAM>(field_.maxLength()), 0);
      return true;
    default:
      return false;
  }
}

void EditText::changed() {
  if (!setByCode_) field_.onUserText(textOf(edit_), selection());
}

forms::Selection EditText::selection() const {
  if (edit_ == nullptr) return field_.lastSelection();
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(edit_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end - start)};
}

}  // namespace nv::windows
