// One instance of the component's class, used as a host uses it: created through COM, its properties by name, its
// methods through the interface, its events through a connection point. Belongs to the user-interface thread.
#pragma once

#include <windows.h>
// after <windows.h>
#include <NVRandom.h>
#include <wrl/client.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/base/Text.h"

namespace nv::host {

class Biller {
 public:
  enum class Show { modal, remote, import };

  /// Creates the instance and connects to its events. Fails with CallError when the component is not registered.
  /// @param onEvent told each event as it comes.
  explicit Biller(std::function<void(const std::wstring& event)> onEvent = {});
  /// Disconnects and lets the instance go.
  ~Biller();
  Biller(const Biller&) = delete;
  Biller& operator=(const Biller&) = delete;

  void put(const std::wstring& property, const Value& value);
  /// Sets what a biller's file says: see setBiller.
  void set(const std::filesystem::path& file, const std::wstring& root);
  Value get(const std::wstring& property);
  /// The properties that can be read, in the order of the interface.
  std::vector<std::wstring> readable();

  LONG show(Show kind);
  void unloadFromRemote();
  HWND window();
  /// Size of the connected dialog, in twips.
  SIZE size();

  /// The events since the last forgetEvents, in order, as "Cancel" or "CurrentFieldTop(1200)".
  const std::vector<std::wstring>& events() const { return events_; }
  void forgetEvents() { events_.clear(); }

 private:
  class Sink;

  void received(std::wstring event);

  std::function<void(const std::wstring&)> onEvent_;
  std::vector<std::wstring> events_;
  Microsoft::WRL::ComPtr<_ClsRandom> object_;
  Microsoft::WRL::ComPtr<Sink> sink_;
  Microsoft::WRL::ComPtr<IConnectionPoint> connection_;
  DWORD cookie_ = 0;
};

}  // namespace nv::host
