// Labels.
#include "forms/Label.h"
#include "windows/forms/ControlWindows.h"

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

  const forms::Colours& colours() const override {
    return label_.transparent() ? containerColours() : label_.colours();
  }

  forms::Label& label_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeLabelWindow(FormWindow& owner, forms::Label& label) {
  return std::make_unique<LabelWindow>(owner, label);
}

}  // namespace nv::windows
