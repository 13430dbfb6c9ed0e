// A frame: a captioned box around other controls. A hidden frame hides them, a disabled one blocks input to
// them, and they look so.
#pragma once

#include "forms/Control.h"

namespace nv::forms {

class Frame : public CaptionedControl {
 public:
  Frame(Parent parent, Name name, std::wstring caption = {})
      : CaptionedControl(parent, Kind::frame, name, std::move(caption)) {}
};

}  // namespace nv::forms
