#include "scenario/native/Look.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <vector>

#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

std::wstring truth(bool value) {
  return value ? L"true" : L"false";
}

namespace {

std::wstring shownColour(forms::Colour colour) {
  if (colour == forms::colours::buttonFace.back) return L"button face";
  if (colour == forms::colours::window.back) return L"#FFFFFF";
  wchar_t text[8];
  std::swprintf(text, std::size(text), L"#%02X%02X%02X", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
  return text;
}

/// A number of twips as exact as pixels are.
std::wstring inPixels(forms::Twips twips) {
  constexpr int pixel = 15;
  return std::to_wstring((twips + pixel / 2) / pixel * pixel);
}

/// What is seen of a place; of a form itself its inside.
std::wstring lookAt(const forms::Place& place, std::wstring_view aspect) {
  if (aspect == L"left") return inPixels(place.left);
  if (aspect == L"top") return inPixels(place.top);
  if (aspect == L"width") return inPixels(place.width);
  return inPixels(place.height);
}

bool isPlace(std::wstring_view aspect) {
  return aspect == L"left" || aspect == L"top" || aspect == L"width" || aspect == L"height";
}

}  // namespace

std::wstring lookAtControl(const User& user, const std::wstring& name, std::wstring_view aspect) {
  const forms::Control& control = user.control(name);
  const test::Seen& seen = user.seen(name);
  const auto* const field = dynamic_cast<const forms::TextField*>(&control);
  const bool list = control.kind() == forms::Kind::comboBox || control.kind() == forms::Kind::dropDownList;
  if (aspect == L"name") return nameOf(control);
  if (aspect == L"role") return roleName(roleOf(control));
  if (aspect == L"key") return keyOf(control);
  if (aspect == L"action") return actionOf(control);
  if (aspect == L"required") return truth(isRequired(control));
  if (aspect == L"text" || aspect == L"caption") return seen.text;
  if (aspect == L"visible") return truth(user.visible(name));
  if (aspect == L"focused") return truth(user.focus() == name);
  if (aspect == L"checked") return truth(seen.checked);
  if (aspect == L"masked") return truth(seen.mask != 0);
  if (aspect == L"selection") return field != nullptr ? user.selected(name) : L"";
  if (aspect == L"font") return seen.font.name;
  if (aspect == L"maxlength") return std::to_wstring(seen.maxLength);
  if (aspect == L"rows") return list ? std::to_wstring(seen.rows.size()) : L"no list";
  if (aspect == L"row") return list ? replaced(user.row(name), L";", L"\t") : L"no list";
  if (aspect == L"columns") {
    const auto* const columns = dynamic_cast<const forms::DropDownList*>(&control);
    return columns != nullptr ? std::to_wstring(columns->columns().size()) : list ? L"1" : L"no list";
  }
  if (aspect == L"backcolor") {
    const auto* const label = dynamic_cast<const forms::Label*>(&control);
    if (label == nullptr || !label->transparent()) return shownColour(seen.look.colours.back);
    return shownColour(control.frame() != nullptr ? user.seen(control.frame()->fullName()).look.colours.back
                                                  : user.form().colours().back);
  }
  forms::Place place = seen.place;
  for (const forms::Frame* frame = control.frame(); frame != nullptr; frame = frame->frame()) {
    place.left += frame->place().left;
    place.top += frame->place().top;
  }
  return lookAt(place, aspect);
}

std::wstring lookAtForm(const User& user, const std::wstring& aspect) {
  if (aspect == L"text" || aspect == L"caption") return user.title();
  if (aspect == L"name") return user.title();
  if (aspect == L"role") return user.form().border() == forms::Border::dialog ? L"dialog" : L"grouping";
  if (aspect == L"visible") return truth(user.open());
  if (aspect == L"backcolor") return shownColour(user.form().colours().back);
  const forms::Place place = user.form().place();
  if (!isPlace(aspect)) throw Failure(L"nothing is known of the " + aspect + L" of a form");
  const bool embedded = user.form().border() == forms::Border::embedded;
  return lookAt(embedded ? place : forms::Place{0, 0, place.width, place.height}, aspect);
}

namespace {

struct Shown {
  const forms::Control* control;
  forms::Place place;
};

/// What can be used looks so, and nothing else does; a form for reading greys no text.
void checkLook(const User& user, const forms::Control& control) {
  const std::wstring name = control.fullName();
  const forms::Look& look = user.seen(name).look;
  const bool open = user.enabled(name);
  if (look.alive && !open) throw Failure(name + L" looks as if it could be used");
  if (look.greyed && open) throw Failure(name + L" is greyed");
  if (!look.greyed && !open && !user.form().forReading()) throw Failure(name + L" is not greyed");
  if (dynamic_cast<const forms::TextField*>(&control) == nullptr) return;
  if ((look.colours == forms::colours::window) != open) throw Failure(name + L" has the wrong background");
}

void checkOverlaps(const std::vector<Shown>& shown) {
  for (const auto& [control, place] : shown) {
    for (const auto& [other, second] : shown) {
      if (other == control) break;
      if (other->frame() == control->frame() && place.left < second.right() && second.left < place.right() &&
          place.top < second.bottom() && second.top < place.bottom()) {
        throw Failure(control->fullName() + L" overlaps " + other->fullName());
      }
    }
  }
}

/// Nothing of what stands in a frame, or on the form itself, is further from what is above it, or from the end, than
/// `most`.
void checkHoles(std::vector<Shown> shown, const forms::Frame* frame, forms::Twips height, forms::Twips most) {
  std::erase_if(shown, [frame](const Shown& each) { return each.control->frame() != frame; });
  std::ranges::sort(shown, {}, [](const Shown& each) { return each.place.top; });
  forms::Twips end = 0;
  for (const auto& [control, place] : shown) {
    if (place.top - end > most) throw Failure(L"a hole above " + control->fullName());
    end = std::max(end, place.bottom());
  }
  if (height - end > most)
    throw Failure(L"a hole at the end of " + (frame != nullptr ? frame->fullName() : L"the form"));
}

}  // namespace

void checkLayout(const User& user) {
  constexpr forms::Twips mostInFrames = 330, mostInForms = 500;
  std::vector<Shown> shown;
  for (const forms::Control* control : user.form().controls()) {
    if (user.visible(control->fullName())) shown.push_back({control, user.seen(control->fullName()).place});
  }
  for (const auto& [control, place] : shown) {
    if (place.width <= 0 || place.height <= 0) throw Failure(control->fullName() + L" has no size");
    const forms::Frame* const frame = control->frame();
    const forms::Place around = frame != nullptr ? frame->place() : user.form().place();
    if (place.left < 0 || place.top < 0 || place.right() > around.width || place.bottom() > around.height) {
      throw Failure(control->fullName() + L" reaches out of what it stands in");
    }
    checkLook(user, *control);
    if (control->kind() == forms::Kind::frame)
      checkHoles(shown, static_cast<const forms::Frame*>(control), place.height, mostInFrames);
  }
  checkOverlaps(shown);
  checkHoles(shown, nullptr, user.form().place().height, mostInForms);
}

}  // namespace nv::scenario
