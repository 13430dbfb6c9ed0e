// Labels.
#include "forms/Label.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

namespace {

class LabelWindow final : public ControlWindow {
 public:
  LabelWindow(FormWindow& owner, forms::Label& label) : ControlWindow(owner, label), label_(label) {}

 private:
  Native native() const override {
    DWORD style = SS_LEFT;
    if (label_.alignment() == forms::Label::Alignment::right) style = SS_RIGHT;
    if (label_.alignment() == forms::Label::Alignment::centre) style = SS_CENTER;
    if (!label_.usesMnemonic()) style |= SS_NOPREFIX;
    return {L"STATIC", style};
  }

  RECT area() const override { return textArea(); }

  /// The system would write what is disabled in its own grey, on any background.
  bool enabled() const override { return true; }

  void apply(forms::Attribute attribute) override {
    ControlWindow::apply(attribute);
    if (attribute == forms::Attribute::appearance) ControlWindow::apply(forms::Attribute::place);  // by the font
  }

  forms::Label& label_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeLabelWindow(FormWindow& owner, forms::Label& label) {
  return std::make_unique<LabelWindow>(owner, label);
}

}  // namespace nv::windows
