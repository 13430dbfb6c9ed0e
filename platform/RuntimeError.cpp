#include "platform/RuntimeError.h"

#include <new>
#include <stdexcept>
#include <type_traits>

namespace nv {

static_assert(std::is_nothrow_copy_constructible_v<RuntimeError>, "so that \"Out of memory\" can be reported");

RuntimeError::RuntimeError(ErrorNumber number) noexcept : number_(static_cast<std::int32_t>(number)) {}

RuntimeError::RuntimeError(std::int32_t number, std::wstring description)
    : number_(number), own_(std::make_shared<const std::wstring>(std::move(description))) {}

RuntimeError::~RuntimeError() = default;

const char* RuntimeError::what() const noexcept {
  return "nv::RuntimeError";
}

std::wstring_view RuntimeError::description() const noexcept {
  if (own_) return *own_;
  switch (static_cast<ErrorNumber>(number_)) {
    case ErrorNumber::invalidCall:
      return L"Invalid procedure call or argument";
    case ErrorNumber::outOfMemory:
      return L"Out of memory";
    case ErrorNumber::subscriptOutOfRange:
      return L"Subscript out of range";
    case ErrorNumber::typeMismatch:
      return L"Type mismatch";
    case ErrorNumber::libraryNotLoadable:
      return L"Error in loading DLL";
    case ErrorNumber::fileNotFound:
      return L"File not found";
    case ErrorNumber::permissionDenied:
      return L"Permission denied";
    case ErrorNumber::pathAccess:
      return L"Path/File access error";
    case ErrorNumber::pathNotFound:
      return L"Path not found";
    case ErrorNumber::invalidUseOfNull:
      return L"Invalid use of Null";
    case ErrorNumber::cannotCreateObject:
      return L"ActiveX component can't create object";
    case ErrorNumber::entryPointNotFound:
      return L"Can't find DLL entry point";
  }
  return L"Automation error";
}

RuntimeError RuntimeError::current() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(ErrorNumber::outOfMemory);
  } catch (const std::length_error&) {  // a text that outgrows what memory could ever hold
    return RuntimeError(ErrorNumber::outOfMemory);
  } catch (const std::out_of_range&) {
    return RuntimeError(ErrorNumber::subscriptOutOfRange);
  } catch (...) {
    return RuntimeError(ErrorNumber::invalidCall);
  }
}

}  // namespace nv
