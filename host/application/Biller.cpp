#include "host/application/Biller.h"

#include <ocidl.h>

#include <atomic>
#include <utility>

#include "host/application/Automation.h"
#include "host/application/BillerFile.h"
#include "host/standins/Diversion.h"

namespace nv::host {

namespace {

/// The events by their dispatch identifiers, which begin with 1.
constexpr const wchar_t* eventNames[] = {L"CSBOK", L"CurrentFieldTop", L"Cancel", L"ViewSampleCheque"};

}  // namespace

/// What the component sends its events to.
class Biller::Sink : public IDispatch {
 public:
  explicit Sink(Biller& biller) : biller_(&biller) {}
  virtual ~Sink() = default;

  /// Someone else may keep the sink longer than the biller lives.
  void disconnect() { biller_ = nullptr; }

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    if (id != IID_IUnknown && id != IID_IDispatch && id != DIID___ClsRandom) {
      *result = nullptr;
      return E_NOINTERFACE;
    }
    *result = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
    if (id < 1 || id > static_cast<DISPID>(std::size(eventNames))) return DISP_E_MEMBERNOTFOUND;
    if (biller_ == nullptr) return S_OK;
    std::wstring event = eventNames[id - 1];
    for (UINT i = 0; i < parameters->cArgs; ++i) {
      const _bstr_t argument(_variant_t(parameters->rgvarg[i]));
      event.append(L"(").append(argument).append(L")");
    }
    biller_->received(std::move(event));
    return S_OK;
  }

 private:
  Biller* biller_;
  std::atomic<ULONG> references_ = 0;
};

Biller::Biller(std::function<void(const std::wstring&)> onEvent) : onEvent_(std::move(onEvent)) {
  CLSID id;
  check(CLSIDFromProgID(L"NVRandom.ClsRandom", &id));
  check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID__ClsRandom, &object_));
  divertBrowserAndHelp();
  Microsoft::WRL::ComPtr<IConnectionPointContainer> container;
  check(object_->QueryInterface(IID_IConnectionPointContainer, &container));
  check(container->FindConnectionPoint(DIID___ClsRandom, &connection_));
  sink_ = new Sink(*this);
  check(connection_->Advise(sink_.Get(), &cookie_));
}

Biller::~Biller() {
  sink_->disconnect();
  connection_->Unadvise(cookie_);
}

void Biller::received(std::wstring event) {
  events_.push_back(std::move(event));
  if (onEvent_) onEvent_(events_.back());
}

void Biller::put(const std::wstring& property, const Value& value) {
  putProperty(*object_.Get(), property, value);
}

void Biller::set(const std::filesystem::path& file, const std::wstring& root) {
  setBiller(*object_.Get(), file, root);
}

Value Biller::get(const std::wstring& property) {
  return getProperty(*object_.Get(), property);
}

std::vector<std::wstring> Biller::readable() {
  return readableProperties(*object_.Get());
}

LONG Biller::show(Show kind) {
  LONG result = 0;
  switch (kind) {
    case Show::modal:
      check(object_->ShowForm(&result));
      break;
    case Show::remote:
      check(object_->ShowForm_Remote(&result));
      break;
    case Show::import:
      check(object_->ShowForm_Import(&result));
      break;
  }
  return result;
}

void Biller::unloadFromRemote() {
  check(object_->Unload_From_Remote());
}

HWND Biller::window() {
  LONG handle = 0;
  check(object_->Get_hWnd(&handle));
  return static_cast<HWND>(LongToHandle(handle));
}

SIZE Biller::size() {
  SIZE size{};
  check(object_->Get_Width(&size.cx));
  check(object_->Get_Height(&size.cy));
  return size;
}

}  // namespace nv::host
