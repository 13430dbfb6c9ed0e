// What COM asks of the class: identity, refusals, enumerators, lifetime, threads.
#include <thread>

#include "tests/windows/Server.h"
#include "windows/com/Interfaces.h"

namespace nv::windows::test {

namespace {

struct ComContract : testing::Test {
  static const Server& server() { return Server::get(); }
  const Apartment apartment;
  const ComPtr<_ClsRandom> object = server().create();
};

TEST_F(ComContract, ClassObjectRefusesWhatItIsNot) {
  void* made = &made;
  EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, server().getClassObject(IID_IUnknown, IID_IClassFactory, &made));
  EXPECT_EQ(nullptr, made);
  made = &made;
  EXPECT_EQ(E_NOINTERFACE, server().getClassObject(CLSID_ClsRandom, IID_IDispatch, &made));
  EXPECT_EQ(nullptr, made);
  EXPECT_EQ(E_POINTER, server().getClassObject(CLSID_ClsRandom, IID_IClassFactory, nullptr));
}

TEST_F(ComContract, FactoryRefusesAggregationAndUnknownInterfaces) {
  const auto factory = server().factory();
  void* made = &made;
  EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(factory.Get(), IID_IUnknown, &made));
  EXPECT_EQ(nullptr, made);
  made = &made;
  EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IPersist, &made));
  EXPECT_EQ(nullptr, made);
  EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, IID_IUnknown, nullptr));
}

TEST_F(ComContract, EveryInterfaceLeadsToEveryOtherAndToOneIdentity) {
  ComPtr<IUnknown> identity;
  ASSERT_HRESULT_SUCCEEDED(object->QueryInterface(IID_IUnknown, &identity));
  std::vector<IID> interfaces = {IID_IUnknown,          IID_IDispatch,          IID_ISupportErrorInfo,
                                 IID_IProvideClassInfo, IID_IProvideClassInfo2, IID_IConnectionPointContainer};
  for (const HostInterface& known : hostInterfaces) interfaces.push_back(*known.iid);
  for (const IID& from : interfaces) {
    ComPtr<IUnknown> first;
    ASSERT_HRESULT_SUCCEEDED(object->QueryInterface(from, &first));
    for (const IID& to : interfaces) {
      ComPtr<IUnknown> second;
      ASSERT_HRESULT_SUCCEEDED(first->QueryInterface(to, &second));
      ComPtr<IUnknown> again;
      ASSERT_HRESULT_SUCCEEDED(second->QueryInterface(IID_IUnknown, &again));
      EXPECT_EQ(identity.Get(), again.Get());
    }
  }
  void* none = &none;
  EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(IID_IStream, &none));
  EXPECT_EQ(nullptr, none);
}

TEST_F(ComContract, DllStaysLoadedWhileAnythingOfItIsHeld) {
  const std::wstring path = serverPath() + L".copy.dll";  // the other tests hold the DLL itself
  ASSERT_TRUE(CopyFileW(serverPath().c_str(), path.c_str(), FALSE));
  {
    const Server copy(path);
    const auto thread = [](auto&& work) {
      std::thread([&work] {
        const Apartment own;
        work();
      }).join();
    };
    EXPECT_EQ(S_OK, copy.canUnloadNow());
    copy.factory()->LockServer(TRUE);
    EXPECT_EQ(S_FALSE, copy.canUnloadNow());
    copy.factory()->LockServer(FALSE);
    EXPECT_EQ(S_OK, copy.canUnloadNow());

    ComPtr<IEnumConnections> connections;
    thread([&] {
      putText(copy.create().Get(), &_ClsRandom::put_PayeeCity, L"KEPT");
      EXPECT_EQ(S_FALSE, copy.canUnloadNow()) << "the thread's values outlive the object";
      EXPECT_EQ(L"KEPT", getText(copy.create().Get(), &_ClsRandom::get_PayeeCity));
      eventsOf(copy.create().Get())->EnumConnections(&connections);
    });
    EXPECT_EQ(S_FALSE, copy.canUnloadNow()) << "an enumerator outlives its object";
    connections.Reset();
    EXPECT_EQ(S_OK, copy.canUnloadNow()) << "the values end with their thread";

    putText(copy.create().Get(), &_ClsRandom::put_PayeeCity, L"LOST");  // a host may unload it all the same
  }
  EXPECT_EQ(nullptr, GetModuleHandleW(path.c_str()));
  EXPECT_TRUE(DeleteFileW(path.c_str()));
}

TEST_F(ComContract, ConnectionPointsAreEnumeratedAndFound) {
  ComPtr<IConnectionPointContainer> container;
  ASSERT_HRESULT_SUCCEEDED(object->QueryInterface(IID_IConnectionPointContainer, &container));

  ComPtr<IEnumConnectionPoints> points;
  ASSERT_HRESULT_SUCCEEDED(container->EnumConnectionPoints(&points));
  ComPtr<IConnectionPoint> point;
  ULONG fetched = 0;
  ASSERT_EQ(S_OK, points->Next(1, &point, &fetched));
  EXPECT_EQ(1U, fetched);
  IID iid;
  EXPECT_EQ(S_OK, point->GetConnectionInterface(&iid));
  EXPECT_EQ(DIID___ClsRandom, iid);
  ComPtr<IConnectionPointContainer> back;
  EXPECT_EQ(S_OK, point->GetConnectionPointContainer(&back));
  EXPECT_EQ(container.Get(), back.Get());

  IConnectionPoint* more = nullptr;
  EXPECT_EQ(S_FALSE, points->Next(1, &more, &fetched));
  EXPECT_EQ(0U, fetched);
  EXPECT_EQ(S_OK, points->Reset());
  EXPECT_EQ(S_OK, points->Skip(1));
  EXPECT_EQ(S_FALSE, points->Skip(1));
  ComPtr<IEnumConnectionPoints> clone;
  ASSERT_EQ(S_OK, points->Clone(&clone));
  EXPECT_EQ(S_FALSE, clone->Next(1, &more, &fetched)) << "a clone stands where its original stands";

  EXPECT_EQ(CONNECT_E_NOCONNECTION, container->FindConnectionPoint(IID_IDispatch, &more));
}

TEST_F(ComContract, ConnectionsAreCountedAndGivenBack) {
  const auto point = eventsOf(object.Get());
  Sink first([](DISPID, const DISPPARAMS&) { return S_OK; });
  Sink second([](DISPID, const DISPPARAMS&) { return S_OK; });
  DWORD firstCookie = 0;
  DWORD secondCookie = 0;
  ASSERT_EQ(S_OK, point->Advise(&first, &firstCookie));
  ASSERT_EQ(S_OK, point->Advise(&second, &secondCookie));
  EXPECT_NE(firstCookie, secondCookie);

  ComPtr<IEnumConnections> connections;
  ASSERT_EQ(S_OK, point->EnumConnections(&connections));
  CONNECTDATA data[3]{};
  ULONG fetched = 0;
  EXPECT_EQ(S_FALSE, connections->Next(3, data, &fetched));
  ASSERT_EQ(2U, fetched);
  EXPECT_EQ(firstCookie, data[0].dwCookie);
  EXPECT_EQ(&second, data[1].pUnk);
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  connections.Reset();

  EXPECT_EQ(S_OK, point->Unadvise(firstCookie));
  EXPECT_EQ(CONNECT_E_NOCONNECTION, point->Unadvise(firstCookie));
  EXPECT_EQ(0U, first.references) << "the listener was let go of";
  EXPECT_EQ(S_OK, point->Unadvise(secondCookie));

  // A listener that cannot receive the events is refused.
  ComPtr<IUnknown> factory;
  server().getClassObject(CLSID_ClsRandom, IID_IUnknown, &factory);
  DWORD none = 1;
  EXPECT_EQ(CONNECT_E_CANNOTCONNECT, point->Advise(factory.Get(), &none));
  EXPECT_EQ(0U, none);
}

TEST_F(ComContract, ClassInfoLeadsToTheClassAndItsEvents) {
  ComPtr<IProvideClassInfo2> provider;
  ASSERT_HRESULT_SUCCEEDED(object->QueryInterface(IID_IProvideClassInfo2, &provider));
  GUID guid;
  EXPECT_EQ(S_OK, provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &guid));
  EXPECT_EQ(DIID___ClsRandom, guid);
  EXPECT_EQ(E_INVALIDARG, provider->GetGUID(99, &guid));
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(S_OK, provider->GetClassInfo(&info));
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(S_OK, info->GetTypeAttr(&attributes));
  EXPECT_EQ(CLSID_ClsRandom, attributes->guid);
  info->ReleaseTypeAttr(attributes);
}

TEST_F(ComContract, FailuresCarryErrorInfoAndTheClassicNumber) {
  ComPtr<ISupportErrorInfo> supports;
  ASSERT_HRESULT_SUCCEEDED(object->QueryInterface(IID_ISupportErrorInfo, &supports));
  EXPECT_EQ(S_OK, supports->InterfaceSupportsErrorInfo(IID__ClsRandom));
  EXPECT_EQ(S_FALSE, supports->InterfaceSupportsErrorInfo(IID_IConnectionPoint));

  Variant flat;
  flat.vt = VT_ARRAY | VT_BSTR;
  flat.parray = SafeArrayCreateVector(VT_BSTR, 0, 3);
  EXPECT_EQ(static_cast<HRESULT>(0x800A0009), object->put_Prov_areacode(flat)) << "one dimension where two are needed";
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(S_OK, GetErrorInfo(0, &info));
  Bstr source;
  Bstr description;
  info->GetSource(source.out());
  info->GetDescription(description.out());
  EXPECT_EQ(L"NVRandom", view(source.get()));
  EXPECT_EQ(L"Subscript out of range", view(description.get()));

  Variant null;
  null.vt = VT_NULL;
  EXPECT_EQ(static_cast<HRESULT>(0x800A005E), object->put_NVMemberType(null)) << "invalid use of Null";
  Variant word;
  word.vt = VT_BSTR;
  word.bstrVal = SysAllocString(L"maybe");
  EXPECT_EQ(static_cast<HRESULT>(0x800A000D), object->put_IPBillerNameAcctExist(word)) << "type mismatch";
}

TEST_F(ComContract, LateBoundPutsTakeWhatHostsHandOver) {
  enum Members : DISPID { memberType = 38, areaCodes = 28, currencies = 53, city = 10 };
  const auto put = [&](DISPID member, WORD flags, VARIANT& value) {
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &named, 1, 1};
    EXCEPINFO exception{};
    const HRESULT result =
        object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, nullptr, &exception, nullptr);
    const Bstr source(exception.bstrSource);
    const Bstr description(exception.bstrDescription);
    if (result != DISP_E_EXCEPTION) return result;
    EXPECT_EQ(L"NVRandom", view(source.get()));
    return static_cast<HRESULT>(exception.scode);
  };
  constexpr auto typeMismatch = static_cast<HRESULT>(0x800A000D);

  Variant text;
  text.vt = VT_BSTR;
  text.bstrVal = SysAllocString(L"KENORA");
  EXPECT_EQ(S_OK, put(city, DISPATCH_PROPERTYPUTREF, text)) << "a plain value by reference";
  EXPECT_EQ(L"KENORA", getText(object.Get(), &_ClsRandom::get_PayeeCity));
  Variant list;
  list.vt = VT_ARRAY | VT_BSTR;
  list.parray = SafeArrayCreateVector(VT_BSTR, 0, 2);
  VARIANT reference;
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &list;
  for (const WORD flags : std::initializer_list<WORD>{DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF}) {
    EXPECT_EQ(S_OK, put(currencies, flags, list));
    EXPECT_EQ(S_OK, put(currencies, flags, reference));
    EXPECT_EQ(typeMismatch, put(currencies, flags, text));
  }
  // More elements than any memory holds: a host's descriptor may say so.
  Variant boundless;
  ASSERT_EQ(S_OK, SafeArrayAllocDescriptorEx(VT_BSTR, 2, &boundless.parray));
  boundless.vt = VT_ARRAY | VT_BSTR;
  SAFEARRAYBOUND* const bounds = boundless.parray->rgsabound;
  bounds[0] = bounds[1] = {1U << 31, 0};
  EXPECT_EQ(static_cast<HRESULT>(0x800A0007), put(currencies, DISPATCH_PROPERTYPUT, boundless));
  EXPECT_EQ(S_OK, object->put_IPBillerCurrencies(&list.parray));
  EXPECT_EQ(S_OK, object->put_IPBillerCurrencies(nullptr)) << "no array is an empty one";

  VARIANT endless;
  endless.vt = VT_BYREF | VT_VARIANT;
  endless.pvarVal = &endless;
  for (const DISPID member : {memberType, areaCodes, currencies, city}) {
    EXPECT_EQ(typeMismatch, put(member, DISPATCH_PROPERTYPUT, endless)) << member;
  }
  EXPECT_EQ(typeMismatch, object->put_NVMemberType(endless));
}

TEST_F(ComContract, TextsKeepEveryCharacter) {
  const std::wstring text(L"a\0b\x00E9\x20AC", 5);
  const Bstr value = Bstr::copyOf(text);
  ASSERT_EQ(S_OK, object->put_PayeeName(value.get()));
  EXPECT_EQ(text, getText(object.Get(), &_ClsRandom::get_PayeeName));
  ASSERT_EQ(S_OK, object->put_PayeeName(nullptr)) << "no string is an empty one";
  EXPECT_EQ(L"", getText(object.Get(), &_ClsRandom::get_PayeeName));
  EXPECT_EQ(E_POINTER, object->get_PayeeName(nullptr));
}

}  // namespace

}  // namespace nv::windows::test
