// The commands of the scenario language in which the user does or sees something.
#include <optional>
#include <vector>

#include "host/base/Text.h"
#include "host/scenario/Commands.h"
#include "host/scenario/Player.h"
#include "host/user/Look.h"

namespace nv::host {

namespace {

Action readType(Tokens& tokens) {
  std::optional<std::wstring> control;
  if (tokens.nextIsWord()) control = tokens.word();
  const std::wstring text = tokens.text();
  return [=](Player& player, const Statement&) {
    if (control) player.user().click(player.window(*control));
    player.user().type(text);
  };
}

Chord readChord(Tokens& tokens) {
  const std::wstring name = tokens.word();
  const auto chord = chordOf(name);
  if (!chord) throw Failure(L"there is no key " + name);
  return *chord;
}

Action readClear(Tokens& tokens) {
  const std::wstring control = tokens.word();
  return [=](Player& player, const Statement&) { player.user().clear(player.window(control)); };
}

Action readKey(Tokens& tokens) {
  std::vector<Chord> chords;
  do chords.push_back(readChord(tokens));
  while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (const Chord& chord : chords) player.user().press(chord);
  };
}

template <User::Button button>
Action readPress(Tokens& tokens) {
  const std::wstring control = tokens.word();
  return [=](Player& player, const Statement&) { player.user().click(player.window(control), button); };
}

Action readChoose(Tokens& tokens) {
  const std::wstring control = tokens.word();
  const std::wstring row = tokens.text();
  return [=](Player& player, const Statement&) { player.user().choose(player.window(control), row); };
}

Action readIs(Tokens& tokens) {
  const std::wstring name = tokens.word();
  const std::wstring aspect = tokens.word();
  if (!isAspect(aspect)) throw Failure(L"nothing is known of " + aspect + L", but of " + aspectNames());
  const bool isText = !tokens.nextIsWord();
  const std::wstring expected = tokens.wordOrText();
  return [=](Player& player, const Statement&) {
    const auto seen = player.user().thread().ask(
        [dialog = player.dialog(), window = player.window(name), aspect] { return look(dialog, window, aspect); });
    if (seen != expected) isText ? differ(inQuotes(expected), inQuotes(seen)) : differ(expected, seen);
  };
}

Action readMessage(Tokens& tokens) {
  const std::wstring text = tokens.text();
  std::optional<std::wstring> caption;
  std::optional<std::wstring> icon;
  std::optional<std::wstring> buttons;
  std::wstring answer = L"ok";
  while (!tokens.atEnd()) {
    if (tokens.take(L"caption")) {
      caption = tokens.text();
    } else if (tokens.take(L"icon")) {
      icon = tokens.word();
    } else if (tokens.take(L"buttons")) {
      buttons = tokens.word();
    } else if (tokens.take(L"answer")) {
      answer = tokens.word();
    } else {
      throw Failure(L"a message box has no " + tokens.wordOrText());
    }
  }
  return [=](Player& player, const Statement&) {
    const MessageBoxView box = player.user().awaitMessageBox();
    if (box.text != text) differ(inQuotes(text), inQuotes(box.text));
    if (caption && box.caption != *caption) differ(L"caption " + inQuotes(*caption), inQuotes(box.caption));
    if (icon && box.icon != *icon) differ(L"icon " + *icon, box.icon);
    if (buttons && box.buttons != *buttons) differ(L"buttons " + *buttons, box.buttons);
    player.user().answer(box, answer);
  };
}

Action readClose(Tokens& tokens) {
  const std::wstring window = tokens.take(L"host") ? L"host" : L"form";
  return [=](Player& player, const Statement&) { player.user().closeByBox(player.window(window)); };
}

/// Sends what the system sends when it shuts down. Returns the window's answer.
DWORD_PTR sendAsSystem(HWND window, UINT message, WPARAM wParam) {
  DWORD_PTR answer = 0;
  constexpr auto timeout = static_cast<UINT>(std::chrono::milliseconds(UiThread::timeout).count());
  if (SendMessageTimeoutW(window, message, wParam, 0, SMTO_NORMAL, timeout, &answer) == 0 && IsWindow(window)) {
    throw Failure(L"the window does not answer the system");
  }
  return answer;
}

BOOL CALLBACK collectWindow(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

/// Every top-level window of the host's thread is asked, hidden ones too, and all are told what came of it.
Action readEndSession(Tokens&) {
  return [](Player& player, const Statement&) {
    const HWND dialog = player.dialog();
    if (!IsWindow(dialog)) throw Failure(L"the dialog is gone");
    std::vector<HWND> windows;
    EnumThreadWindows(GetWindowThreadProcessId(dialog, nullptr), collectWindow, reinterpret_cast<LPARAM>(&windows));
    bool agreed = true;
    for (const HWND window : windows) agreed = agreed && sendAsSystem(window, WM_QUERYENDSESSION, 0) != 0;
    for (const HWND window : windows) {
      if (IsWindow(window)) sendAsSystem(window, WM_ENDSESSION, agreed ? TRUE : FALSE);
    }
    player.user().settle();
  };
}

Action readIn(Tokens& tokens) {
  const std::wstring name = tokens.word();
  return [=](Player& player, const Statement&) { player.setDialog(player.user().awaitDialog(name)); };
}

Action readShot(Tokens& tokens) {
  const std::wstring file = tokens.wordOrText();
  return [=](Player& player, const Statement&) {
    player.user().pictureOf(player.dialog()).save(player.surroundings().pictures / file);
  };
}

using enum Command::Place;

constexpr Command userTable[] = {
    {L"type", L"type [CONTROL] \"TEXT\"", inBlock, readType},
    {L"clear", L"clear CONTROL", inBlock, readClear},
    {L"key", L"key KEY...", inBlock, readKey},
    {L"press", L"press CONTROL", inBlock, readPress<User::Button::left>},
    {L"rightpress", L"rightpress CONTROL", inBlock, readPress<User::Button::right>},
    {L"choose", L"choose CONTROL \"CELL\"", inBlock, readChoose},
    {L"is", L"is CONTROL | form | host  ASPECT VALUE", anywhere, readIs},
    {L"message", L"message \"TEXT\" [caption \"TEXT\"] [icon ICON] [buttons BUTTONS] [answer BUTTON]", atMessageBox,
     readMessage},
    {L"close", L"close [host]", inBlock, readClose},
    {L"endsession", L"endsession", inBlock, readEndSession},
    {L"in", L"in WINDOW", inBlock, readIn},
    {L"shot", L"shot FILE", atMessageBox, readShot},
};

}  // namespace

std::span<const Command> userCommands() {
  return userTable;
}

}  // namespace nv::host
