#include "host/stage/RealStage.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "host/application/Automation.h"
#include "host/application/Clipboard.h"
#include "host/application/Embedding.h"
#include "host/base/Text.h"
#include "host/standins/Answers.h"
#include "host/user/Look.h"
#include "host/user/Picture.h"
#include "host/user/Reader.h"
#include "host/user/Screen.h"
#include "scenario/Player.h"

namespace nv::host {

using scenario::Dialog;
using scenario::Showing;

namespace {

constexpr const wchar_t* dialogName = L"frmRandomInfo";

HWND handleOf(Dialog dialog) {
  return reinterpret_cast<HWND>(dialog);
}

Dialog dialogOf(HWND window) {
  return reinterpret_cast<Dialog>(window);
}

}  // namespace

RealStage::RealStage(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      installation_(surroundings_.installation, surroundings_.standIns),
      user_(thread_) {}

void RealStage::begin() {
  thread_.ask([this] { mainWindow_ = std::make_unique<HostWindow>(L"NVHost", POINT{20, 20}, SIZE{1000, 800}); });
  user_.await(L"the host's window does not come to the front",
              [this] { return GetForegroundWindow() == mainWindow_->handle(); });
  thread_.ask([this] { Clipboard(mainWindow_->handle()).clear(); });
}

void RealStage::finish() {
  if (!instances_.empty() && !dialogs(thread_.id(), {}).empty()) {
    onHost([this] { instances_.begin()->second.biller->unloadFromRemote(); });
  }
  onHost([this] {
    instances_.clear();
    mainWindow_.reset();
  });
  user_.settle();
  const auto left = dialogs(thread_.id(), {});
  if (!left.empty()) throw Failure(nameOf(left.front()) + L" is still up when all instances are released");
}

std::wstring RealStage::picture() {
  const auto file = surroundings_.pictures / L"failure.png";
  try {
    user_.paint();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): a host that hangs is shown as it is
  }
  try {
    Picture::ofScreen().save(file);
    return L" (screen: " + file.wstring() + L")";
  } catch (const Failure& missing) {
    return L" (" + missing.text() + L")";
  }
}

template <class Result>
void RealStage::awaitReturn(const std::future<Result>& result, const wchar_t* complaint) {
  thread_.waitUntil([&] { return UiThread::ready(result) || host::messageBox(thread_.id()) != nullptr; });
  if (UiThread::ready(result)) return;
  if (const auto box = messageBox()) scenario::failUnexpected(*box);
  throw Failure(complaint);
}

// Instances

Biller& RealStage::biller() {
  const auto found = instances_.find(inUse_);
  if (found == instances_.end()) throw Failure(L"there is no instance " + inUse_);
  return *found->second.biller;
}

void RealStage::create(const std::wstring& instance) {
  if (instances_.contains(instance)) throw Failure(L"there is an instance " + instance + L" already");
  onHost([this, instance] { instances_[instance].biller = std::make_unique<Biller>(onEvent); });
  inUse_ = instance;
}

void RealStage::use(const std::wstring& instance) {
  inUse_ = instance;
  biller();
}

void RealStage::release(const std::wstring& instance) {
  if (!instances_.contains(instance)) throw Failure(L"there is no instance " + instance);
  onHost([this, instance] { instances_.erase(instance); });
}

void RealStage::put(const std::wstring& property, const Value& value) {
  onHost([&biller = biller(), &property, &value] { biller.put(property, value); });
}

Value RealStage::get(const std::wstring& property) {
  return onHost([&biller = biller(), &property] { return biller.get(property); });
}

const std::vector<std::wstring>& RealStage::readable() {
  if (readable_.empty()) readable_ = onHost([&biller = biller()] { return biller.readable(); });
  return readable_;
}

std::vector<std::wstring> RealStage::events() {
  return onHost([&biller = biller()] { return biller.events(); });
}

void RealStage::forgetEvents() {
  onHost([this] {
    for (auto& [name, instance] : instances_) instance.biller->forgetEvents();
  });
}

void RealStage::unload() {
  onHost([&biller = biller()] { biller.unloadFromRemote(); });
  user_.settle();
}

// Showing

void RealStage::beginShow(Showing kind) {
  biller();
  Show show{inUse_, kind == Showing::modal || kind == Showing::import, dialogs(thread_.id(), dialogName), {}};
  show.returned = thread_.begin([this, kind, name = inUse_]() -> Returned {
    auto& [biller, window] = instances_.at(name);
    if (kind == Showing::modal) return {biller->show(Biller::Show::modal), nullptr};
    if (kind == Showing::import) return {biller->show(Biller::Show::import), nullptr};
    if (!window || window->handle() == nullptr) window = windowFor(*biller);
    if (kind == Showing::remote) embed(*biller, *window);
    const LONG result = biller->show(Biller::Show::remote);
    if (kind == Showing::remoteEmbeddedAfterwards) embed(*biller, *window);
    return {result, biller->window()};
  });
  shows_.push_back(std::move(show));
}

Dialog RealStage::awaitShown() {
  Show& show = shows_.back();
  const auto appears = [&] {
    if (!show.modal) return false;
    for (const HWND window : dialogs(thread_.id(), dialogName)) {
      if (std::ranges::find(show.before, window) == show.before.end()) show.dialog = window;
    }
    return show.dialog != nullptr;
  };
  user_.await(L"no dialog appears",
              [&] { return appears() || UiThread::ready(show.returned) || host::messageBox(thread_.id()) != nullptr; });
  if (!show.modal && UiThread::ready(show.returned)) {
    const Returned returned = show.returned.get();
    result_ = returned.result;
    show.dialog = returned.dialog;
    user_.await(L"the dialog does not appear", [&] { return IsWindowVisible(show.dialog) != FALSE; });
  }
  if (show.dialog != nullptr) user_.settle();
  return dialogOf(show.dialog);
}

void RealStage::endShow() {
  Show show = std::move(shows_.back());
  shows_.pop_back();
  if (show.modal) {
    awaitReturn(show.returned, L"the dialog is still up");
    result_ = show.returned.get().result;
  }
  user_.settle();
  if (show.modal || IsWindow(show.dialog)) return;
  onHost([this, &show] {
    if (instances_.contains(show.instance)) instances_.at(show.instance).window.reset();
  });
}

// The user

Dialog RealStage::awaitDialog(const std::wstring& name) {
  return dialogOf(user_.awaitDialog(name));
}

bool RealStage::isUp(Dialog dialog) {
  return IsWindow(handleOf(dialog)) != FALSE;
}

Dialog RealStage::front() {
  const auto up = dialogs(thread_.id(), {});
  return up.empty() || !enabledForUser(up.front()) ? scenario::noDialog : dialogOf(up.front());
}

std::vector<std::wstring> RealStage::reachable(Dialog dialog) {
  std::vector<std::wstring> names;
  for (const HWND control : controlsIn(handleOf(dialog))) {
    if (user_.reaches(control)) names.push_back(nameOf(control));
  }
  return names;
}

std::wstring RealStage::focus(Dialog dialog) {
  return thread_.ask([form = handleOf(dialog)] {
    for (HWND window = GetFocus(); window != nullptr && window != form; window = GetAncestor(window, GA_PARENT)) {
      if (IsChild(form, window) && !nameOf(window).empty()) return nameOf(window);
    }
    return std::wstring();
  });
}

HWND RealStage::hostWindow() {
  const auto found = instances_.find(inUse_);
  const HWND own = found == instances_.end() || !found->second.window ? nullptr : found->second.window->handle();
  return own != nullptr ? own : mainWindow_->handle();
}

/// A window by name: "form" for the dialog, "host" for the host's window around or behind it, else one of the dialog's
/// controls, which is waited for.
HWND RealStage::window(Dialog dialog, const std::wstring& name) {
  const HWND form = handleOf(dialog);
  if (name == L"form" && form != nullptr) return form;
  if (name == L"host") return hostWindow();
  if (!IsWindow(form)) throw Failure(L"the dialog is gone");
  return user_.awaitControl(form, name);
}

void RealStage::click(Dialog dialog, const std::wstring& control, scenario::MouseButton button) {
  user_.click(window(dialog, control),
              button == scenario::MouseButton::left ? User::Button::left : User::Button::right);
}

void RealStage::choose(Dialog dialog, const std::wstring& list, const std::wstring& cell) {
  user_.choose(window(dialog, list), cell);
}

void RealStage::close(Dialog dialog) {
  user_.closeByBox(GetAncestor(window(dialog, L"form"), GA_ROOT));
}

void RealStage::closeHost() {
  user_.closeByBox(hostWindow());
}

namespace {

/// Sends what the system sends when it shuts down. Returns the window's answer.
DWORD_PTR sendAsSystem(HWND window, UINT message, WPARAM wParam) {
  DWORD_PTR answer = 0;
  constexpr auto timeout = static_cast<UINT>(std::chrono::milliseconds(UiThread::timeout).count());
  if (SendMessageTimeoutW(window, message, wParam, 0, SMTO_NORMAL, timeout, &answer) == 0 && IsWindow(window)) {
    throw Failure(L"the window does not answer the system");
  }
  return answer;
}

}  // namespace

/// Every top-level window of the host's thread is asked, hidden ones too, and all are told what came of it.
void RealStage::endSession(Dialog dialog) {
  if (!isUp(dialog)) throw Failure(L"the dialog is gone");
  const auto windows = topLevelWindows(thread_.id());
  bool agreed = true;
  for (const HWND window : windows) agreed = agreed && sendAsSystem(window, WM_QUERYENDSESSION, 0) != 0;
  for (const HWND window : windows) {
    if (IsWindow(window)) sendAsSystem(window, WM_ENDSESSION, agreed ? TRUE : FALSE);
  }
  user_.settle();
}

std::wstring RealStage::look(Dialog dialog, const std::wstring& name, const std::wstring& aspect) {
  // A control has no window before it is first shown.
  if (aspect == L"visible" && name != L"host" && name != L"form" && controlIn(handleOf(dialog), name) == nullptr) {
    return L"false";
  }
  const HWND seen = window(dialog, name);
  if (isHeard(aspect)) return hear(seen, thread_.ask([seen] { return typingField(seen); }), aspect);
  return thread_.ask([dialog, seen, &aspect] { return host::look(handleOf(dialog), seen, aspect); });
}

std::optional<scenario::Message> RealStage::messageBox() {
  const HWND window = host::messageBox(thread_.id());
  if (window == nullptr) return std::nullopt;
  return user_.viewOf(window).seen;
}

scenario::Message RealStage::awaitMessageBox() {
  box_ = user_.awaitMessageBox();
  return box_.seen;
}

void RealStage::answer(const std::wstring& button) {
  user_.answer(box_, button);
}

void RealStage::shot(Dialog dialog, const std::wstring& file) {
  user_.pictureOf(handleOf(dialog)).save(surroundings_.pictures / file);
}

void RealStage::compareSize() {
  const auto shown = [](SIZE size) { return std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy); };
  onHost([&biller = biller(), shown] {
    const HWND dialog = biller.window();
    const SIZE told = biller.size();
    if (!IsWindow(dialog)) throw Failure(L"Get_hWnd gives no window");
    if ((GetWindowLongW(dialog, GWL_STYLE) & WS_CAPTION) == WS_CAPTION) throw Failure(L"the window has a caption");
    RECT inside{};
    GetClientRect(dialog, &inside);
    if (told.cx <= 0 || told.cy <= 0 || toPixels(told.cx, dialog) != inside.right ||
        toPixels(told.cy, dialog) != inside.bottom) {
      const SIZE seen{toTwips(inside.right, dialog), toTwips(inside.bottom, dialog)};
      scenario::differ(L"the window to be " + shown(told) + L" as Get_Width and Get_Height tell", shown(seen));
    }
  });
}

// What is around

std::optional<std::vector<std::wstring>> RealStage::lines(const std::wstring& file) {
  return installation_.lines(file);
}

std::wstring RealStage::clipboard() {
  return thread_.ask([this] { return Clipboard(mainWindow_->handle()).text(); });
}

void RealStage::setClipboard(const std::wstring& text) {
  thread_.ask([this, &text] { Clipboard(mainWindow_->handle()).set(text); });
}

void RealStage::setCountries(const std::wstring& text) {
  installation_.setCountries(narrow(text, CP_ACP));
}

void RealStage::setVerifierRegistered(bool registered) {
  record(answersFile, registered ? L"create 1" : L"create fails 0x80040154");  // class not registered
}

}  // namespace nv::host
