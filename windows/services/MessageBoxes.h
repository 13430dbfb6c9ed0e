// Message boxes over the window that the user works in.
#pragma once

#include "platform/Services.h"

namespace nv::windows {

class MessageBoxes : public platform::MessageBoxes {
 public:
  Answer show(std::wstring_view text, std::wstring_view caption, Icon icon, Buttons buttons) override;
};

}  // namespace nv::windows
