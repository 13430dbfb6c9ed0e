// Text that the user reads: plain labels, and labels that are links.
#pragma once

#include "forms/Control.h"

namespace nv::forms {

/// A label. Its mnemonic leads to the next control that takes the focus, so it stands before its field.
class Label : public CaptionedControl {
 public:
  enum class Alignment { left, right, centre };

  Label(Parent parent, Name name, std::wstring caption = {}, Alignment alignment = Alignment::left)
      : CaptionedControl(parent, Kind::label, name, std::move(caption)), alignment_(alignment) {}

  Alignment alignment() const { return alignment_; }

  /// A label that shows data has no mnemonic: an "&" in its caption stands for itself.
  bool usesMnemonic() const override { return usesMnemonic_; }
  void setUsesMnemonic(bool uses) { usesMnemonic_ = uses; }

  /// A transparent label shows its container's colour instead of its own.
  bool transparent() const { return transparent_; }
  void setTransparent(bool transparent) {
    if (transparent == transparent_) return;
    transparent_ = transparent;
    changed(Attribute::appearance);
  }

 private:
  Alignment alignment_;
  bool usesMnemonic_ = true;
  bool transparent_ = true;
};

/// A label that is a link: a click, Enter or Space on it raises `click`. Without a text there is nothing to click; one
/// that leads nowhere is passed over by Tab and looks like text.
class Hyperlink : public CaptionedControl {
 public:
  Hyperlink(Parent parent, Name name, std::wstring caption = {})
      : CaptionedControl(parent, Kind::hyperlink, name, std::move(caption)) {}

  void setLeads(bool leads) {
    if (leads == leads_) return;
    leads_ = leads;
    changed(Attribute::appearance);
  }
  bool usable() const override { return leads_ && !caption().empty(); }
  bool takesFocus() const override { return usable(); }
  bool useKey(const KeyDown& key) override;

  /// For the widgetset: the user clicked.
  void clicked() {
    if (takesInput() && usable()) click.raise();
  }

 private:
  bool leads_ = true;
};

}  // namespace nv::forms
