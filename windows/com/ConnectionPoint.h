// The connection point of the class: its listeners, and raising events.
#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "windows/Handles.h"

namespace nv::windows {

/// The connection point of one dispatch event interface. Part of its object: it shares the object's lifetime and has an
/// identity of its own.
class ConnectionPoint : public IConnectionPoint {
 public:
  ConnectionPoint(IConnectionPointContainer& container, REFIID eventInterface)
      : container_(container), eventInterface_(eventInterface) {}
  virtual ~ConnectionPoint() = default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return container_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return container_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* iid) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

  /// Calls every listener that was connected at the start and still is when its turn comes. What a listener returns is
  /// ignored.
  /// @param arguments in the order of the event's parameters.
  void raise(DISPID event, std::initializer_list<VARIANT> arguments = {}) noexcept;

 private:
  struct Listener {
    DWORD cookie;
    ComPtr<IDispatch> sink;
  };

  bool listening(DWORD cookie) const;

  IConnectionPointContainer& container_;
  IID eventInterface_;
  std::vector<Listener> listeners_;
  DWORD lastCookie_ = 0;
};

/// An enumerator of the one connection point of a container.
HRESULT enumerateConnectionPoints(IConnectionPoint& point, IEnumConnectionPoints** points);

}  // namespace nv::windows
