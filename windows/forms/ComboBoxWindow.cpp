// Combo boxes.
#include "forms/ComboBox.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/EditText.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/ListArrow.h"

namespace nv::windows {

using forms::Attribute;

namespace {

constexpr int droppedRows = 12;

class ComboBoxWindow final : public ControlWindow {
 public:
  ComboBoxWindow(FormWindow& owner, forms::ComboBox& comboBox)
      : ControlWindow(owner, comboBox), comboBox_(comboBox), text_(comboBox) {}

  forms::Selection selection() const override { return text_.selection(); }
  HWND focusWindow() const override { return text_.window(); }

 private:
  Native native() const override { return {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL}; }

  void created() override {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof(parts);
    GetComboBoxInfo(window(), &parts);
    subclass(parts.hwndItem);
    showEntries();
    text_.connect(parts.hwndItem);
  }

  void apply(Attribute attribute) override {
    switch (attribute) {
      case Attribute::appearance:
        ControlWindow::apply(attribute);
        [[fallthrough]];  // the font decides about the height
      case Attribute::place:
        ControlWindow::apply(Attribute::place);
        setHeight();
        break;
      case Attribute::rows:
        showEntries();
        break;
      case Attribute::row:
        showRow();
        break;
      default:
        if (!text_.apply(attribute)) ControlWindow::apply(attribute);
    }
  }

  /// The system takes the window's height for the list below the box, and that of the box from an item's.
  RECT area() const override {
    RECT area = lineArea();
    area.bottom += droppedRows * owner().lineHeight(comboBox_.font());
    return area;
  }

  void setHeight() {
    const RECT box = lineArea();
    const int border = systemMetric(SM_CYEDGE, owner().scale().dpi()) + 1;
    SendMessageW(window(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), box.bottom - box.top - 2 * border);
    hideSelection();
  }

  void showEntries() {
    {
      const auto code = text_.setByCode();
      SendMessageW(window(), CB_RESETCONTENT, 0, 0);
      for (const std::wstring& entry : comboBox_.entries()) {
        SendMessageW(window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
      }
    }
    showRow();
  }

  void showRow() {
    // Choosing in the window also sets its text, which the control decides about.
    const auto code = text_.setByCode();
    SendMessageW(window(), CB_SETCURSEL, static_cast<WPARAM>(comboBox_.listIndex()), 0);
    if (text_.window() != nullptr) text_.apply(Attribute::text);
  }

  /// Enter and Escape close an open list, and do no more.
  bool usesKey(WPARAM key) override {
    const bool closes = key == VK_RETURN || key == VK_ESCAPE;
    if (!closes || SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) == 0) return false;
    SendMessageW(window(), CB_SHOWDROPDOWN, FALSE, 0);
    return true;
  }

  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override {
    const LRESULT result = ControlWindow::handle(window, message, wparam, lparam);
    if (window != this->window()) {
      if (message == WM_KILLFOCUS) hideSelection();
      return result;
    }
    if (message == WM_SETFONT) setHeight();
    if (message == WM_PRINTCLIENT) paintOver(reinterpret_cast<HDC>(wparam));
    if (message == WM_PAINT) {
      const HDC context = GetDC(window);
      paintOver(context);
      ReleaseDC(window, context);
    }
    return result;
  }

  /// The system keeps showing what is selected in a box that is left, and selects all in one that is resized.
  void hideSelection() {
    constexpr auto none = static_cast<WPARAM>(-1);
    if (!comboBox_.hasFocus()) SendMessageW(text_.window(), EM_SETSEL, none, 0);
  }

  /// The system draws its arrow as a button where it can be typed into the box, and in use whenever its window is.
  void paintOver(HDC context) {
    RECT inside;
    GetClientRect(window(), &inside);
    const int dpi = owner().scale().dpi();
    InflateRect(&inside, -systemMetric(SM_CXEDGE, dpi), -systemMetric(SM_CYEDGE, dpi));
    const RECT arrow = arrowArea(inside, dpi);
    const bool open = SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != 0;
    FillRect(context, &arrow, owner().brush(background()));
    paintArrow(window(), context, arrow, comboBox_.look().alive, open);
  }

  bool usesCharacter(wchar_t character) const override { return EditText::uses(character); }
  std::optional<bool> dropped() const override { return SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != 0; }

  void notified(UINT code) override {
    if (code == CBN_EDITCHANGE) text_.changed();
    if (code != CBN_SELCHANGE) return;
    const auto row = static_cast<int>(SendMessageW(window(), CB_GETCURSEL, 0, 0));
    if (row >= 0) comboBox_.picked(row);
  }

  forms::ComboBox& comboBox_;
  EditText text_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeComboBoxWindow(FormWindow& owner, forms::ComboBox& comboBox) {
  return std::make_unique<ComboBoxWindow>(owner, comboBox);
}

}  // namespace nv::windows
