// What the DLL costs before it does anything.
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Rows.h"
#include "tests/windows/Server.h"

namespace nv::bench {

using windows::ComPtr;
using windows::Library;

namespace {

Library loaded(const std::wstring& path, DWORD how) {
  Library library(LoadLibraryExW(path.c_str(), nullptr, how));
  if (!library) throw std::runtime_error("a library cannot be loaded");
  return library;
}

std::wstring systemFolder() {
  wchar_t path[MAX_PATH];
  return {path, GetSystemDirectoryW(path, MAX_PATH)};
}

/// Full paths of the libraries that a mapped one imports, all of the system. Fails when one is not.
std::vector<std::wstring> imports(HMODULE library) {
  const auto* const base = reinterpret_cast<const char*>(library);
  const auto* const headers =
      reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* each = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  std::vector<std::wstring> paths;
  for (; each->Name != 0; ++each) {
    const std::string name = base + each->Name;
    paths.push_back(systemFolder() + L"\\" + std::wstring(name.begin(), name.end()));
    if (!std::filesystem::exists(paths.back())) throw std::runtime_error("the DLL imports " + name);
  }
  return paths;
}

}  // namespace

const Alone createByClass{L"--create", [] {
                            ComPtr<_ClsRandom> object;
                            return timed([&] {
                              EXPECT_HRESULT_SUCCEEDED(CoCreateInstance(CLSID_ClsRandom, nullptr, CLSCTX_INPROC_SERVER,
                                                                        IID__ClsRandom, &object));
                            });
                          }};
const Alone loadLibraryAlone{L"--load", [] {
                               Library library;
                               return timed([&] { library = loaded(windows::test::serverPath(), 0); });
                             }};

Comparison firstCreation() {
  EXPECT_HRESULT_SUCCEEDED(windows::test::Server::get().registerServer());
  return compare([] { return elsewhere(createByClass); }, [] { return elsewhere(loadLibraryAlone); }, 31);
}

Comparison libraryLoad() {
  // A copy: the other rows keep the DLL itself loaded.
  const std::wstring path = windows::test::serverPath() + L".copy.dll";
  std::filesystem::copy_file(windows::test::serverPath(), path, std::filesystem::copy_options::overwrite_existing);
  const std::vector<std::wstring> imported = imports(loaded(path, DONT_RESOLVE_DLL_REFERENCES).get());
  const Comparison took = compare(repeated([&] { loaded(path, 0); }), repeated([&] {
                                    const Library mapped = loaded(path, DONT_RESOLVE_DLL_REFERENCES);
                                    for (const std::wstring& each : imported) loaded(each, 0);
                                  }));
  std::filesystem::remove(path);
  return took;
}

Comparison librarySize() {
  imports(loaded(windows::test::serverPath(), DONT_RESOLVE_DLL_REFERENCES).get());
  constexpr double most = 1024 * 1024;
  return exactly(static_cast<double>(std::filesystem::file_size(windows::test::serverPath())), most);
}

}  // namespace nv::bench
