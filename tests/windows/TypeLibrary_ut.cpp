// The type library, read back and held against the published interface.
#include <fstream>
#include <set>

#include "tests/windows/StandIns.h"
#include "windows/com/Interfaces.h"

namespace nv::windows::test {

namespace {

std::string narrow(std::wstring_view text) {
  return {text.begin(), text.end()};
}

std::string typeName(const TYPEDESC& type) {
  switch (type.vt) {
    case VT_I2:
      return "short";
    case VT_I4:
      return "long";
    case VT_BSTR:
      return "BSTR";
    case VT_VARIANT:
      return "VARIANT";
    case VT_VOID:
      return "void";
    case VT_HRESULT:
      return "HRESULT";
    case VT_PTR:
      return typeName(*type.lptdesc) + (type.lptdesc->vt == VT_SAFEARRAY ? "*" : "");
    case VT_SAFEARRAY:
      return typeName(*type.lptdesc) + "()";
    default:
      return "type " + std::to_string(type.vt);
  }
}

/// A function of a type, as a line of the published interface.
std::string describe(ITypeInfo* info, UINT index) {
  FUNCDESC* function = nullptr;
  if (FAILED(info->GetFuncDesc(index, &function))) return "?";
  Bstr name;
  Bstr help;  // what an object browser tells
  info->GetDocumentation(function->memid, name.out(), help.out(), nullptr, nullptr);
  EXPECT_FALSE(view(help.get()).empty()) << "no help for " << narrow(view(name.get()));
  std::string type = typeName(function->elemdescFunc.tdesc);
  if (function->cParams == 1) type = typeName(function->lprgelemdescParam[0].tdesc);
  if (type == "HRESULT") type = "void";
  const std::string kind = function->invkind == INVOKE_PROPERTYGET   ? "get "
                           : function->invkind == INVOKE_PROPERTYPUT ? "put "
                                                                     : "call ";
  const std::string line = kind + std::to_string(function->memid) + " " + narrow(view(name.get())) + " " + type;
  info->ReleaseFuncDesc(function);
  return line;
}

ComPtr<ITypeLib> library() {
  ComPtr<ITypeLib> library;
  EXPECT_HRESULT_SUCCEEDED(LoadTypeLibEx(serverPath().c_str(), REGKIND_NONE, &library));
  return library;
}

/// The functions that a type adds to what it is derived from.
std::vector<std::string> members(REFGUID guid) {
  ComPtr<ITypeInfo> info;
  EXPECT_HRESULT_SUCCEEDED(library()->GetTypeInfoOfGuid(guid, &info));
  // Of a dual interface the dispatch side is found; the other one has the functions in the order of the table.
  HREFTYPE other = 0;
  ComPtr<ITypeInfo> table = info;
  if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &other))) info->GetRefTypeInfo(other, &table);
  TYPEATTR* attributes = nullptr;
  EXPECT_HRESULT_SUCCEEDED(table->GetTypeAttr(&attributes));
  std::vector<std::string> lines;
  for (UINT i = 0; i < attributes->cFuncs; ++i) lines.push_back(describe(table.Get(), i));
  table->ReleaseTypeAttr(attributes);
  return lines;
}

TEST(TypeLibrary, APublishedInterfaceStaysAsItIs) {
  std::ifstream published(sourceFile("tests/windows/interface.txt"));
  ASSERT_TRUE(published);
  std::vector<std::string> expected;
  for (std::string line; std::getline(published, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    expected.push_back(line);
  }
  const std::vector<std::string> seen = members(IID__ClsRandom);
  for (std::size_t i = 0; i < std::max(seen.size(), expected.size()); ++i) {
    ASSERT_LT(i, expected.size()) << seen[i]
                                  << " was added to _ClsRandom, which is published; it belongs to _ClsRandom2";
    ASSERT_LT(i, seen.size()) << expected[i] << " is missing";
    ASSERT_EQ(expected[i], seen[i]);
  }
}

TEST(TypeLibrary, EventsHaveTheirNumbersAndParameters) {
  const std::vector<std::string> expected = {"call 1 CSBOK void", "call 2 CurrentFieldTop short", "call 3 Cancel void",
                                             "call 4 ViewSampleCheque void"};
  EXPECT_EQ(expected, members(DIID___ClsRandom));
}

TEST(TypeLibrary, DescribesItselfAndItsClass) {
  Bstr name;
  Bstr description;
  library()->GetDocumentation(-1, name.out(), description.out(), nullptr, nullptr);
  EXPECT_EQ(L"NVRandom", view(name.get()));
  EXPECT_EQ(L"Norvik Customer Specific Biller Info", view(description.get()));

  ComPtr<ITypeInfo> coclass;
  ASSERT_HRESULT_SUCCEEDED(library()->GetTypeInfoOfGuid(CLSID_ClsRandom, &coclass));
  std::set<std::pair<std::string, int>> implemented;
  for (UINT i = 0; i <= std::size(hostInterfaces); ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ComPtr<ITypeInfo> info;
    Bstr interfaceName;
    ASSERT_HRESULT_SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference));
    ASSERT_HRESULT_SUCCEEDED(coclass->GetImplTypeFlags(i, &flags));
    ASSERT_HRESULT_SUCCEEDED(coclass->GetRefTypeInfo(reference, &info));
    info->GetDocumentation(-1, interfaceName.out(), nullptr, nullptr, nullptr);
    implemented.emplace(narrow(view(interfaceName.get())), flags);
  }
  std::set<std::pair<std::string, int>> expected = {{"__ClsRandom", IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE}};
  for (const HostInterface& known : hostInterfaces) {
    expected.emplace(narrow(known.name), *known.iid == __uuidof(NewestInterface) ? IMPLTYPEFLAG_FDEFAULT : 0);
  }
  EXPECT_EQ(expected, implemented);
}

}  // namespace

}  // namespace nv::windows::test
