// Owners of what Windows and COM hand out: one type per kind of resource, each releasing exactly once.
#pragma once

#include <string_view>
#include <utility>

#include "windows/SystemHeaders.h"
// after it
#include <wrl/client.h>

namespace nv::windows {

/// Owner of a handle-like value; `Traits` says what the value is, which one is invalid and how it is given back.
template <class Traits>
class Unique {
 public:
  using Value = typename Traits::Value;

  Unique() = default;
  explicit Unique(Value value) : value_(value) {}
  Unique(Unique&& other) noexcept : value_(other.release()) {}
  Unique& operator=(Unique&& other) noexcept {
    reset(other.release());
    return *this;
  }
  Unique(const Unique&) = delete;
  Unique& operator=(const Unique&) = delete;
  ~Unique() { reset(); }

  Value get() const { return value_; }
  explicit operator bool() const { return value_ != Traits::invalid(); }
  Value release() { return std::exchange(value_, Traits::invalid()); }
  void reset(Value value = Traits::invalid()) {
    const Value old = std::exchange(value_, value);
    if (old != Traits::invalid()) Traits::close(old);
  }
  /// For functions that hand out a value through a pointer.
  Value* out() {
    reset();
    return &value_;
  }

 private:
  Value value_ = Traits::invalid();
};

struct FileTraits {
  using Value = HANDLE;
  static Value invalid() { return INVALID_HANDLE_VALUE; }
  static void close(Value value) { CloseHandle(value); }
};
using FileHandle = Unique<FileTraits>;

/// Handles that are null where there is none.
template <class Handle>
struct NullableTraits {
  using Value = Handle;
  static Value invalid() { return nullptr; }
};

struct KeyTraits : NullableTraits<HKEY> {
  static void close(Value value) { RegCloseKey(value); }
};
using RegistryKey = Unique<KeyTraits>;

struct LibraryTraits : NullableTraits<HMODULE> {
  static void close(Value value) { FreeLibrary(value); }
};
using Library = Unique<LibraryTraits>;

template <class Handle>
struct GdiTraits : NullableTraits<Handle> {
  static void close(Handle value) { DeleteObject(value); }
};
using FontHandle = Unique<GdiTraits<HFONT>>;
using Brush = Unique<GdiTraits<HBRUSH>>;
using Bitmap = Unique<GdiTraits<HBITMAP>>;

struct MemoryDcTraits : NullableTraits<HDC> {
  static void close(Value value) { DeleteDC(value); }
};
using MemoryDc = Unique<MemoryDcTraits>;

struct HookTraits : NullableTraits<HHOOK> {
  static void close(Value value) { UnhookWindowsHookEx(value); }
};
using Hook = Unique<HookTraits>;

struct ThemeTraits : NullableTraits<HTHEME> {
  static void close(Value value) { CloseThemeData(value); }
};
using Theme = Unique<ThemeTraits>;

struct IconTraits : NullableTraits<HICON> {
  static void close(Value value) { DestroyIcon(value); }
};
using Icon = Unique<IconTraits>;

struct BstrTraits {
  using Value = BSTR;
  static Value invalid() { return nullptr; }
  static void close(Value value) { SysFreeString(value); }
};

/// Owner of a BSTR.
class Bstr : public Unique<BstrTraits> {
 public:
  Bstr() = default;
  /// Null when memory runs out.
  static Bstr copyOf(std::wstring_view text) {
    return Bstr(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
  }

 private:
  using Unique::Unique;
};

/// The text of a BSTR, which may be null and may hold any character.
inline std::wstring_view view(BSTR text) {
  return {text == nullptr ? L"" : text, SysStringLen(text)};
}

struct SafeArrayTraits {
  using Value = SAFEARRAY*;
  static Value invalid() { return nullptr; }
  static void close(Value value) { SafeArrayDestroy(value); }
};
using SafeArray = Unique<SafeArrayTraits>;

/// Owner of a VARIANT's contents.
struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  ~Variant() { VariantClear(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
};

using Microsoft::WRL::ComPtr;

}  // namespace nv::windows
