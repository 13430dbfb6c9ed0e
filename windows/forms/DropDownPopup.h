// The list that drops down from a multi-column drop-down list. It never takes the focus or the activation from the
// form.
#pragma once

#include <optional>

#include "forms/DropDownList.h"
#include "windows/Handles.h"
#include "windows/forms/Accessibility.h"
#include "windows/forms/MessageHandler.h"

namespace nv::windows {

class DropDownListWindow;

class DropDownPopup final : public MessageHandler, private Teller, private RowTeller {
 public:
  DropDownPopup(DropDownListWindow& owner, forms::DropDownList& list)
      : MessageHandler(list.form()), owner_(owner), list_(list) {}
  ~DropDownPopup() { destroy(); }

  bool open() const { return popup_ != nullptr && IsWindowVisible(popup_); }
  /// Shows the list below `anchor` (a rectangle of the screen) or, without room there, above it.
  void show(const RECT& anchor, HFONT font);
  void hide();
  void destroy();
  /// Follows the rows or the selected row of the control.
  void rowsChanged();
  void rowChanged();
  /// Rows that fit into the open list, for paging.
  int page() const;
  /// The list's window, made when it is missing.
  HWND listWindow();

 private:
  LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
  void destroyed(HWND window) override;
  // Teller: the open list and its rows
  Told tell(HWND window) const override;
  const RowTeller* rows(HWND window) const override { return window == rows_ ? this : nullptr; }
  long count() const override { return static_cast<long>(list_.rows().size()); }
  std::wstring name(long row) const override;
  long selected() const override;
  RECT area(long row) const override;
  long at(POINT place) const override;
  void pick(long row) const override;

  std::optional<LRESULT> popupReceives(UINT message, LPARAM lparam);
  std::optional<LRESULT> listReceives(UINT message, LPARAM lparam);
  static LRESULT CALLBACK mouseHook(int code, WPARAM wparam, LPARAM lparam);

  void create();
  int setColumns(HFONT font);
  int heightOf(int rows) const;
  void supplyText(NMLVDISPINFOW& info) const;
  LRESULT colourRow(NMLVCUSTOMDRAW& item) const;
  std::optional<std::size_t> rowAt(POINT place) const;
  void highlight(int row);

  DropDownListWindow& owner_;
  forms::DropDownList& list_;
  HWND popup_ = nullptr;
  HWND rows_ = nullptr;
  static constexpr int none = -1;
  int highlighted_ = none;  // the row that stands out
  Hook outsideClicks_;
  Accessibles accessibles_;
};

}  // namespace nv::windows
