// The one failure type of the component: a number that hosts and scripts know, and a text for the user.
// Everything may include this header; it depends on the standard library alone.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace nv {

/// The run-time errors that a procedure of the component can fail with. The values are the classic numbers of
/// automation languages, so that a script sees `Err.Number = 9` for `subscriptOutOfRange`.
enum class ErrorNumber : std::int32_t {
  invalidCall = 5,
  outOfMemory = 7,
  subscriptOutOfRange = 9,
  typeMismatch = 13,
  libraryNotLoadable = 48,
  fileNotFound = 53,
  permissionDenied = 70,
  pathAccess = 75,
  pathNotFound = 76,
  invalidUseOfNull = 94,
  cannotCreateObject = 429,
  entryPointNotFound = 453,
};

/// A run-time error. Automation failures that have no classic number keep their HRESULT (a negative number) and bring
/// their own description. Building one with a classic number allocates nothing, so it can report that memory ran out.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number) noexcept;
  RuntimeError(std::int32_t number, std::wstring description);
  RuntimeError(const RuntimeError&) = default;
  ~RuntimeError() override;

  std::int32_t number() const noexcept { return number_; }

  /// For debuggers; users see `description`.
  const char* what() const noexcept override;

  /// The error's own text, else the standard text of its number.
  std::wstring_view description() const noexcept;

  /// The error behind the exception being handled, whatever its type: the only place where other exceptions become
  /// run-time errors. To be called inside a catch block only.
  static RuntimeError current() noexcept;

 private:
  std::int32_t number_;
  std::shared_ptr<const std::wstring> own_;  // shared, so that copying an error never fails
};

}  // namespace nv
