#include "host/standins/Cipher.h"

#include <windows.h>
// behind <windows.h>
#include <wincrypt.h>

namespace nv::host {

namespace {

constexpr DWORD blockSize = 8;

/// Kept while the process lives: with the last one the system unloads its service. 0 when it has none.
HCRYPTPROV provider() {
  static const HCRYPTPROV provider = [] {
    HCRYPTPROV acquired = 0;
    CryptAcquireContextW(&acquired, nullptr, nullptr, PROV_RSA_FULL, CRYPT_VERIFYCONTEXT);
    return acquired;
  }();
  return provider;
}

class Key {
 public:
  Key() {
    // The form in which CryptImportKey takes a key that is not enciphered itself.
    const struct {
      BLOBHEADER header{PLAINTEXTKEYBLOB, CUR_BLOB_VERSION, 0, CALG_DES};
      DWORD size = blockSize;
      BYTE bytes[blockSize] = {0x4E, 0x56, 0x52, 0x61, 0x6E, 0x64, 0x6F, 0x6D};
    } blob;
    CryptImportKey(provider(), reinterpret_cast<const BYTE*>(&blob), sizeof(blob), 0, 0, &key_);
  }
  ~Key() {
    if (key_ != 0) CryptDestroyKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  /// 0 when the service does not have the cipher.
  HCRYPTKEY get() const { return key_; }

 private:
  HCRYPTKEY key_ = 0;
};

BYTE* data(std::string& bytes) {
  return reinterpret_cast<BYTE*>(bytes.data());
}

}  // namespace

std::optional<std::string> enciphered(std::string bytes) {
  const Key key;
  auto size = static_cast<DWORD>(bytes.size());
  bytes.resize(bytes.size() + blockSize);
  if (!CryptEncrypt(key.get(), 0, TRUE, 0, data(bytes), &size, static_cast<DWORD>(bytes.size()))) return std::nullopt;
  bytes.resize(size);
  return bytes;
}

std::optional<std::string> deciphered(std::string bytes) {
  const Key key;
  auto size = static_cast<DWORD>(bytes.size());
  if (size == 0 || size % blockSize != 0) return std::nullopt;  // not every system's service says so itself
  if (!CryptDecrypt(key.get(), 0, TRUE, 0, data(bytes), &size)) return std::nullopt;
  bytes.resize(size);
  return bytes;
}

}  // namespace nv::host
