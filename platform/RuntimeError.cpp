#include "platform/RuntimeError.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <type_traits>

namespace nv {

static_assert(std::is_nothrow_copy_constructible_v<RuntimeError>, "so that \"Out of memory\" can be reported");

namespace {

struct StandardText {
  ErrorNumber number;
  std::wstring_view text;
};
constexpr StandardText standardTexts[] = {
    {ErrorNumber::invalidCall, L"Invalid procedure call or argument"},
    {ErrorNumber::outOfMemory, L"Out of memory"},
    {ErrorNumber::subscriptOutOfRange, L"Subscript out of range"},
    {ErrorNumber::typeMismatch, L"Type mismatch"},
    {ErrorNumber::libraryNotLoadable, L"Error in loading DLL"},
    {ErrorNumber::fileNotFound, L"File not found"},
    {ErrorNumber::permissionDenied, L"Permission denied"},
    {ErrorNumber::pathAccess, L"Path/File access error"},
    {ErrorNumber::pathNotFound, L"Path not found"},
    {ErrorNumber::invalidUseOfNull, L"Invalid use of Null"},
    {ErrorNumber::cannotCreateObject, L"ActiveX component can't create object"},
    {ErrorNumber::entryPointNotFound, L"Can't find DLL entry point"},
};

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number) noexcept : number_(static_cast<std::int32_t>(number)) {}

RuntimeError::RuntimeError(std::int32_t number, std::wstring description)
    : number_(number), own_(std::make_shared<const std::wstring>(std::move(description))) {}

RuntimeError::~RuntimeError() = default;

const char* RuntimeError::what() const noexcept {
  return "nv::RuntimeError";
}

std::wstring_view RuntimeError::description() const noexcept {
  if (own_) return *own_;
  const auto found = std::ranges::find(standardTexts, static_cast<ErrorNumber>(number_), &StandardText::number);
  return found == std::end(standardTexts) ? L"Automation error" : found->text;
}

RuntimeError RuntimeError::current() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(ErrorNumber::outOfMemory);
  } catch (const std::length_error&) {  // a text longer than memory can hold
    return RuntimeError(ErrorNumber::outOfMemory);
  } catch (const std::out_of_range&) {
    return RuntimeError(ErrorNumber::subscriptOutOfRange);
  } catch (...) {
    return RuntimeError(ErrorNumber::invalidCall);
  }
}

}  // namespace nv
