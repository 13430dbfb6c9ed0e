// What a host pays for a property, for an object, and for the trace.
#include <thread>

#include "bench/Rows.h"
#include "bench/Workplace.h"
#include "tests/windows/Server.h"

namespace nv::bench {

using windows::Bstr;
using windows::ComPtr;
using windows::FileHandle;
using windows::Variant;
using windows::test::Server;

namespace {

constexpr std::wstring_view value = L"LAKEHEAD HYDRO AND POWER";

/// The least that a property of a text can be: a copy in, into room that is there already, and a copy out.
class BareProperty : public IUnknown {
 public:
  virtual HRESULT STDMETHODCALLTYPE put(BSTR text) = 0;
  virtual HRESULT STDMETHODCALLTYPE get(BSTR* text) = 0;

 protected:
  ~BareProperty() = default;
};

class BareText final : public BareProperty {
 public:
  STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP put(BSTR text) override {
    text_.assign(text, SysStringLen(text));
    return S_OK;
  }
  STDMETHODIMP get(BSTR* text) override {
    *text = SysAllocStringLen(text_.data(), static_cast<UINT>(text_.size()));
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  std::wstring text_;
};

ComPtr<IClassFactory> factoryOf(const wchar_t* program) {
  CLSID id{};
  EXPECT_HRESULT_SUCCEEDED(CLSIDFromProgID(program, &id));
  ComPtr<IClassFactory> factory;
  EXPECT_HRESULT_SUCCEEDED(CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &factory));
  return factory;
}

template <class Interface>
ComPtr<Interface> made(IClassFactory& factory, REFIID iid) {
  ComPtr<Interface> object;
  EXPECT_HRESULT_SUCCEEDED(factory.CreateInstance(nullptr, iid, &object));
  return object;
}

constexpr const wchar_t* dictionaryClass = L"Scripting.Dictionary";

ComPtr<IDispatch> dictionary() {
  return made<IDispatch>(*factoryOf(dictionaryClass).Get(), IID_IDispatch);
}

VARIANT text(const Bstr& of) {
  VARIANT variant;
  variant.vt = VT_BSTR;
  variant.bstrVal = of.get();
  return variant;
}

/// What a script's statement makes of `object.member(arguments)`: the name is looked up, the member invoked.
void invoke(IDispatch* object, const wchar_t* member, WORD how, DISPPARAMS& arguments, VARIANT* result) {
  DISPID id = DISPID_UNKNOWN;
  auto* name = const_cast<LPOLESTR>(member);
  object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
  EXPECT_HRESULT_SUCCEEDED(
      object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &arguments, result, nullptr, nullptr));
}

/// @param arguments the last first; of a put the value.
template <std::size_t count>
void put(IDispatch* object, const wchar_t* member, VARIANT (&arguments)[count]) {
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{arguments, &named, count, 1};
  invoke(object, member, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

void get(IDispatch* object, const wchar_t* member, VARIANT* argument) {
  DISPPARAMS parameters{argument, nullptr, argument == nullptr ? 0U : 1U, 0};
  Variant result;
  invoke(object, member, DISPATCH_PROPERTYGET, parameters, &result);
}

}  // namespace

Comparison vtablePut() {
  const auto object = Server::get().create();
  BareText bareText;
  BareProperty* const bare = opaque<BareProperty*>(&bareText);
  const Bstr text = Bstr::copyOf(value);
  return compare(repeated([&] { object->put_PayeeName(text.get()); }), repeated([&] { bare->put(text.get()); }));
}

Comparison vtableGet() {
  const auto object = Server::get().create();
  BareText bareText;
  BareProperty* const bare = opaque<BareProperty*>(&bareText);
  const Bstr text = Bstr::copyOf(value);
  object->put_PayeeName(text.get());
  bare->put(text.get());
  Bstr got;
  return compare(repeated([&] { object->get_PayeeName(got.out()); }), repeated([&] { bare->get(got.out()); }));
}

Comparison lateBoundPut() {
  const auto object = Server::get().create();
  const auto bare = dictionary();
  const Bstr key = Bstr::copyOf(L"PayeeName");
  const Bstr content = Bstr::copyOf(value);
  VARIANT ourArguments[] = {text(content)};
  VARIANT bareArguments[] = {text(content), text(key)};
  return compare(repeated([&] { put(object.Get(), L"PayeeName", ourArguments); }),
                 repeated([&] { put(bare.Get(), L"Item", bareArguments); }));
}

Comparison lateBoundGet() {
  const auto object = Server::get().create();
  const auto bare = dictionary();
  const Bstr key = Bstr::copyOf(L"PayeeName");
  const Bstr content = Bstr::copyOf(value);
  VARIANT ourArguments[] = {text(content)};
  VARIANT bareArguments[] = {text(content), text(key)};
  put(object.Get(), L"PayeeName", ourArguments);
  put(bare.Get(), L"Item", bareArguments);
  return compare(repeated([&] { get(object.Get(), L"PayeeName", nullptr); }),
                 repeated([&] { get(bare.Get(), L"Item", &bareArguments[1]); }));
}

Comparison classCreation() {
  const auto keepsTheStore = Server::get().create();
  const auto ours = Server::get().factory();
  const auto bare = factoryOf(dictionaryClass);
  return compare(repeated([&] { made<_ClsRandom>(*ours.Get(), IID__ClsRandom); }),
                 repeated([&] { made<IDispatch>(*bare.Get(), IID_IDispatch); }));
}

Comparison briefUse() {
  const auto bare = factoryOf(dictionaryClass);
  const Bstr key = Bstr::copyOf(L"PayeeName");
  const Bstr content = Bstr::copyOf(value);
  VARIANT ourArguments[] = {text(content)};
  VARIANT bareArguments[] = {text(content), text(key)};
  const auto use = [](IClassFactory& factory, const wchar_t* member, auto& arguments) {
    put(made<IDispatch>(factory, IID_IDispatch).Get(), member, arguments);
  };
  // Nothing of ours is held in between: what the first object brings is not to be brought again by the next.
  return compare(repeated([&] { use(*Server::get().factory().Get(), L"PayeeName", ourArguments); }),
                 repeated([&] { use(*bare.Get(), L"Item", bareArguments); }));
}

Comparison traceLine() {
  const Workplace workplace(L"traceLine");
  const auto object = workplace.object();
  const Bstr text = Bstr::copyOf(value);
  object->put_PlayByPlayEnabled(-1);
  const std::string line = "15/11/2026 1:58:04 PM NVRANDOM - ClsRandom - Let PayeeName\r\n";
  const std::wstring path = workplace.root() + L"\\Norvik\\bare.txt";  // spelled like the trace's
  const Sample bare = repeated([&] {
    const FileHandle file(CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    WriteFile(file.get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  });
  const Comparison took = compare(repeated([&] { object->put_PayeeName(text.get()); }), bare);
  object->put_PlayByPlayEnabled(0);
  return took;
}

Comparison objectMemory() {
  const Workplace workplace(L"objectMemory");
  // Each in a thread of its own, which has no store yet; once before it counts, for what is made once for all.
  const auto bytesOf = [](const auto& make) {
    double bytes = 0;
    for (int i = 0; i < 2; ++i) {
      std::thread([&] {
        const windows::test::Apartment apartment;
        const double before = bytesOfHeaps();
        const auto object = make();
        bytes = bytesOfHeaps() - before;
      }).join();
    }
    return bytes;
  };
  return exactly(bytesOf([&] { return workplace.object(); }), bytesOf([&] {
                   auto bare = dictionary();
                   std::wstring name = L"Payee";
                   for (const wchar_t* const content : Workplace::texts()) {
                     const Bstr key = Bstr::copyOf(name += L'x');
                     const Bstr item = Bstr::copyOf(content);
                     VARIANT arguments[] = {text(item), text(key)};
                     put(bare.Get(), L"Item", arguments);
                   }
                   return bare;
                 }));
}

}  // namespace nv::bench
