#include "windows/com/Registration.h"

#include <string>
#include <vector>

#include "windows/com/Interfaces.h"
#include "windows/com/Marshal.h"
#include "windows/com/Module.h"

namespace nv::windows {

namespace {

constexpr const wchar_t* progId = L"NVRandom.ClsRandom";
constexpr const wchar_t* description = L"Norvik Customer Specific Biller Info";
#ifdef _WIN64
constexpr const wchar_t* platform = L"win64";
#else
constexpr const wchar_t* platform = L"win32";
#endif

/// The marshallers that the system brings for automation interfaces.
constexpr const wchar_t* dualProxy = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* dispatchProxy = L"{00020420-0000-0000-C000-000000000046}";

std::wstring text(REFGUID guid) {
  wchar_t buffer[40];
  StringFromGUID2(guid, buffer, static_cast<int>(std::size(buffer)));
  return buffer;
}

std::wstring interfaceKey(REFIID iid) {
  return L"Interface\\" + text(iid);
}
/// The other keys below Software\Classes.
struct Keys {
  std::wstring classId = L"CLSID\\" + text(CLSID_ClsRandom);
  std::wstring library = L"TypeLib\\" + text(LIBID_NVRandom);
  std::wstring version = library + L"\\" + libraryVersion;
  std::wstring ofPlatform = version + L"\\0\\" + platform;
};

struct Entry {
  std::wstring key;     // below Software\Classes
  const wchar_t* name;  // nullptr: the key's default value
  std::wstring value;
};

std::vector<Entry> entries() {
  const Keys keys;
  const std::wstring path = modulePath();
  const std::wstring folder = path.substr(0, path.find_last_of(L'\\'));
  const std::wstring libid = text(LIBID_NVRandom);
  std::vector<Entry> list = {
      {keys.classId, nullptr, progId},
      {keys.classId + L"\\InprocServer32", nullptr, path},
      {keys.classId + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {keys.classId + L"\\ProgID", nullptr, progId},
      {keys.classId + L"\\Programmable", nullptr, L""},
      {keys.classId + L"\\TypeLib", nullptr, libid},
      {keys.classId + L"\\Version", nullptr, libraryVersion},
      {progId, nullptr, description},
      {std::wstring(progId) + L"\\CLSID", nullptr, text(CLSID_ClsRandom)},
      {keys.version, nullptr, description},
      {keys.version + L"\\FLAGS", nullptr, L"0"},
      {keys.version + L"\\HELPDIR", nullptr, folder},
      {keys.ofPlatform, nullptr, path},
  };
  const auto addInterface = [&](REFIID iid, const wchar_t* name, const wchar_t* proxy) {
    const std::wstring key = interfaceKey(iid);
    list.push_back({key, nullptr, name});
    list.push_back({key + L"\\ProxyStubClsid32", nullptr, proxy});
    list.push_back({key + L"\\TypeLib", nullptr, libid});
    list.push_back({key + L"\\TypeLib", L"Version", libraryVersion});
  };
  for (const HostInterface& known : hostInterfaces) addInterface(*known.iid, known.name, dualProxy);
  addInterface(DIID___ClsRandom, L"__ClsRandom", dispatchProxy);
  return list;
}

LSTATUS openClasses(Scope scope, RegistryKey& classes) {
  return RegCreateKeyExW(scope == Scope::user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE, L"Software\\Classes", 0,
                         nullptr, 0, KEY_ALL_ACCESS, nullptr, classes.out(), nullptr);
}

LSTATUS write(HKEY classes, const Entry& entry) {
  RegistryKey key;
  const LSTATUS opened =
      RegCreateKeyExW(classes, entry.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, key.out(), nullptr);
  if (opened != ERROR_SUCCESS) return opened;
  return RegSetValueExW(key.get(), entry.name, 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.value.c_str()),
                        static_cast<DWORD>(entry.value.size() + 1) * sizeof(wchar_t));
}

/// Whether the key exists and has subkeys.
bool hasSubkeys(HKEY classes, const std::wstring& key) {
  RegistryKey opened;
  DWORD count = 0;
  return RegOpenKeyExW(classes, key.c_str(), 0, KEY_READ, opened.out()) == ERROR_SUCCESS &&
         RegQueryInfoKeyW(opened.get(), nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr, nullptr,
                          nullptr, nullptr) == ERROR_SUCCESS &&
         count != 0;
}

LSTATUS removeAll(Scope scope, HKEY classes) {
  const Keys keys;
  LSTATUS first = ERROR_SUCCESS;
  const auto remove = [&](const std::wstring& key) {
    const LSTATUS result = RegDeleteTreeW(classes, key.c_str());
    if (result != ERROR_SUCCESS && result != ERROR_FILE_NOT_FOUND && first == ERROR_SUCCESS) first = result;
  };
  remove(keys.classId);
  for (const HostInterface& known : hostInterfaces) remove(interfaceKey(*known.iid));
  remove(interfaceKey(DIID___ClsRandom));
  // The keys of the type library and of the program identifier are shared by both word sizes, and by versions to come:
  // they go with the last of these.
  remove(keys.ofPlatform);
  if (!hasSubkeys(classes, keys.version + L"\\0")) remove(keys.version);
  if (!hasSubkeys(classes, keys.library)) {
    remove(keys.library);
    remove(progId);
  }
  if (scope == Scope::user) {  // whose first classes may have been ours
    for (const wchar_t* group : {L"CLSID", L"Interface", L"TypeLib"}) {
      RegDeleteKeyW(classes, group);  // refuses one that has subkeys
    }
  }
  return first;
}

}  // namespace

HRESULT registerClass(Scope scope) {
  return guarded([scope] {
    RegistryKey classes;
    LSTATUS result = openClasses(scope, classes);
    if (result == ERROR_SUCCESS) {
      for (const Entry& entry : entries()) {
        result = write(classes.get(), entry);
        if (result == ERROR_SUCCESS) continue;
        removeAll(scope, classes.get());
        break;
      }
    }
    if (result != ERROR_SUCCESS) throw RuntimeError(HRESULT_FROM_WIN32(result), L"The class could not be registered");
  });
}

HRESULT unregisterClass(Scope scope) {
  return guarded([scope] {
    RegistryKey classes;
    LSTATUS result = openClasses(scope, classes);
    if (result == ERROR_SUCCESS) result = removeAll(scope, classes.get());
    if (result != ERROR_SUCCESS) throw RuntimeError(HRESULT_FROM_WIN32(result), L"The class could not be unregistered");
  });
}

}  // namespace nv::windows
