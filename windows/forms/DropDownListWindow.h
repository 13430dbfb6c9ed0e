// A multi-column drop-down list: a text box, a button beside it, and a list with column headers that drops down.
#pragma once

#include "forms/DropDownList.h"
#include "windows/forms/ControlWindow.h"
#include "windows/forms/DropDownPopup.h"
#include "windows/forms/EditText.h"

namespace nv::windows {

class DropDownListWindow final : public ControlWindow {
 public:
  DropDownListWindow(FormWindow& owner, forms::DropDownList& list)
      : ControlWindow(owner, list), list_(list), text_(list), popup_(*this, list) {}

  forms::Selection selection() const override { return text_.selection(); }
  HWND focusWindow() const override { return text_.window(); }

  // For the popup.

  using ControlWindow::owner;
  /// The user picked a row of the open list.
  void picked(std::size_t row);
  void drop(bool down);

 private:
  Native native() const override;
  void created() override;
  void apply(forms::Attribute attribute) override;
  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
  RECT area() const override { return lineArea(); }
  bool drawn() const override { return true; }
  void paint(HDC context, const RECT& area) override;
  bool usesKey(WPARAM key) override;
  bool usesCharacter(wchar_t character) const override { return EditText::uses(character); }
  std::optional<bool> dropped() const override { return popup_.open(); }

  /// In pixels of the window.
  struct Parts {
    RECT whole;
    RECT inside;  // within the edge
    RECT button;
    RECT text;
  };
  Parts parts() const;
  void moveTo(std::ptrdiff_t row);
  /// The messages of the system's combo boxes, for tools that know how to work those.
  bool answer(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);
  std::wstring rowText(std::size_t row) const;

  forms::DropDownList& list_;
  EditText text_;
  DropDownPopup popup_;
};

}  // namespace nv::windows
