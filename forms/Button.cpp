#include "forms/Button.h"

#include "forms/Label.h"

namespace nv::forms {

namespace {
bool plain(const KeyDown& key, int code) {
  return key.code == code && key.shift == 0;
}
}  // namespace

bool Button::useKey(const KeyDown& key) {
  // Space is left to the button itself, which shows itself pressed while the key is down.
  if (!plain(key, keys::enter)) return false;
  press();
  return true;
}

bool Hyperlink::useKey(const KeyDown& key) {
  if (!plain(key, keys::enter) && !plain(key, keys::space)) return false;
  clicked();
  return true;
}

}  // namespace nv::forms
