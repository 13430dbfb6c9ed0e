#include "windows/com/ConnectionPoint.h"

#include <algorithm>

#include "windows/com/Enumerator.h"
#include "windows/com/Marshal.h"

namespace nv::windows {

namespace {

struct Connection {
  DWORD cookie;
  ComPtr<IDispatch> sink;
};

CONNECTDATA handOutConnection(const Connection& connection) {
  connection.sink->AddRef();
  return {connection.sink.Get(), connection.cookie};
}

IConnectionPoint* handOutPoint(const ComPtr<IConnectionPoint>& point) {
  point->AddRef();
  return point.Get();
}

}  // namespace

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IConnectionPoint) return E_NOINTERFACE;
  *object = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (iid == nullptr) return E_POINTER;
  *iid = eventInterface_;
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = &container_;
  container_.AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  return guarded([&] {
    ComPtr<IDispatch> events;
    // A listener implements the event interface or, as scripts' objects do, IDispatch alone.
    if (FAILED(sink->QueryInterface(eventInterface_, &events)) &&
        FAILED(sink->QueryInterface(IID_IDispatch, &events))) {
      throw RuntimeError(CONNECT_E_CANNOTCONNECT, L"The object cannot receive these events");
    }
    listeners_.push_back({lastCookie_ + 1, std::move(events)});
    *cookie = ++lastCookie_;
  });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
  const auto listener = std::ranges::find(listeners_, cookie, &Listener::cookie);
  if (listener == listeners_.end()) return CONNECT_E_NOCONNECTION;
  const Listener leaving = std::move(*listener);  // released only after the list is consistent again
  listeners_.erase(listener);
  return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  return guarded([&] {
    std::vector<Connection> list;
    for (const Listener& listener : listeners_) list.push_back({listener.cookie, listener.sink});
    *connections = new Enumerator<IEnumConnections, CONNECTDATA, Connection, handOutConnection>(std::move(list));
  });
}

bool ConnectionPoint::listening(DWORD cookie) const {
  return std::ranges::find(listeners_, cookie, &Listener::cookie) != listeners_.end();
}

void ConnectionPoint::raise(DISPID event, std::initializer_list<VARIANT> arguments) noexcept {
  const ComPtr<IConnectionPoint> self(this);  // a listener may release the object
  try {
    std::vector<VARIANTARG> reversed(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    for (const Listener& listener : std::vector(listeners_)) {
      if (!listening(listener.cookie)) continue;
      Variant ignored;
      listener.sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &ignored, nullptr,
                            nullptr);
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch): without memory the listeners cannot be called
  }
}

HRESULT enumerateConnectionPoints(IConnectionPoint& point, IEnumConnectionPoints** points) {
  using Points = Enumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>, handOutPoint>;
  return guarded([&] { *points = new Points({ComPtr<IConnectionPoint>(&point)}); });
}

}  // namespace nv::windows
