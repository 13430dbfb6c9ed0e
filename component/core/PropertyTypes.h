// The types of properties.def: the argument that the host passes, the value that the store keeps, and the conversion.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "component/core/StringArray.h"

namespace nv {

/// A value that the host passes as a variant. It is converted only when a property procedure asks for it. A value that
/// cannot be converted fails with "Type mismatch", Null with "Invalid use of Null".
class HostValue {
 public:
  virtual ~HostValue() = default;
  virtual std::wstring text() const = 0;
  virtual bool truth() const = 0;
  virtual StringArray array() const = 0;

  // The same array piece by piece: of what is not asked for, nothing is converted. Both fail with "Subscript out of
  // range" for a dimension or an element that it does not have.
  /// @param dimension from 0.
  virtual std::int32_t upperBound(std::size_t dimension) const = 0;
  /// An element of an array with two dimensions.
  virtual std::wstring element(std::int32_t row, std::int32_t column) const = 0;
};

/// 16-bit truth values: 0 is false, everything else true. Where the component sets one, true is all bits set.
using Flag16 = std::int16_t;
inline constexpr Flag16 flagFalse = 0;
inline constexpr Flag16 flagTrue = -1;

/// A province code and its area codes.
struct ProvinceRow {
  std::wstring code;
  std::wstring areaCodes;
};

namespace property {

struct Integer {
  using Stored = std::int16_t;
  using Argument = std::int16_t;
  static void assign(Stored& stored, Argument value) { stored = value; }
};

/// A truth value that keeps the host's number: its 1 stays 1.
using Flag = Integer;

struct String {
  using Stored = std::wstring;
  using Argument = const std::wstring_view&;
  static void assign(Stored& stored, Argument value) { stored = value; }
};

/// The path of a folder; slashes count as backslashes.
struct Folder {
  using Stored = std::wstring;
  using Argument = const std::wstring_view&;
  static void assign(Stored& stored, Argument value) {
    stored = value;
    std::ranges::replace(stored, L'/', L'\\');
  }
};

struct StringList {
  using Stored = StringArray;
  using Argument = const StringArray&;
  static void assign(Stored& stored, Argument value) { stored = value; }
};

struct VariantText {
  using Stored = std::wstring;
  using Argument = const HostValue&;
  static void assign(Stored& stored, Argument value) { stored = value.text(); }
};

struct VariantTruth {
  using Stored = Flag16;
  using Argument = const HostValue&;
  static void assign(Stored& stored, Argument value) { stored = value.truth() ? flagTrue : flagFalse; }
};

struct VariantArray {
  using Stored = StringArray;
  using Argument = const HostValue&;
  static void assign(Stored& stored, Argument value) { stored = value.array(); }
};

struct ProvinceTable {
  using Stored = std::array<ProvinceRow, 21>;
  using Argument = const HostValue&;
  /// Copies column i of a two-row array into row i, element by element, from 0 to the last but one: the last column of
  /// the array is not copied. Fails with "Subscript out of range" at the first column beyond the table, and at the
  /// first element that cannot be converted; what was copied stays.
  static void assign(Stored& stored, Argument value);
};

}  // namespace property

}  // namespace nv
