#include "scenario/native/Properties.h"

#include <map>
#include <variant>

#include "scenario/Failure.h"

namespace nv::scenario {

namespace {

constexpr auto memberNotFound = static_cast<std::int32_t>(0x80020003);
constexpr auto unknownName = static_cast<std::int32_t>(0x80020006);

/// A value as automation converts it.
class Given final : public HostValue {
 public:
  explicit Given(const Value& value) : value_(value) {}

  std::wstring text() const override {
    if (const auto* text = std::get_if<std::wstring>(&value_)) return *text;
    if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? L"True" : L"False";
    return std::to_wstring(number());
  }
  bool truth() const override { return number() != 0; }
  std::int16_t number() const {
    if (const auto* number = std::get_if<std::int16_t>(&value_)) return *number;
    if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? flagTrue : flagFalse;
    throw RuntimeError(ErrorNumber::typeMismatch);
  }
  StringArray array() const override {
    if (const auto* list = std::get_if<TextList>(&value_)) {
      StringArray array({{0, static_cast<std::int32_t>(list->size()) - 1}});
      array.elements() = *list;
      return array;
    }
    const auto* table = std::get_if<TextTable>(&value_);
    if (table == nullptr) throw RuntimeError(ErrorNumber::typeMismatch);
    StringArray array(
        {{0, static_cast<std::int32_t>(table->size()) - 1}, {0, static_cast<std::int32_t>(table->front().size()) - 1}});
    for (std::int32_t row = 0; row <= array.bounds(0).upper; ++row) {
      for (std::int32_t column = 0; column <= array.bounds(1).upper; ++column) {
        array.at({row, column}) = (*table)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
      }
    }
    return array;
  }
  std::int32_t upperBound(std::size_t dimension) const override { return array().bounds(dimension).upper; }
  std::wstring element(std::int32_t row, std::int32_t column) const override { return array().at({row, column}); }

 private:
  const Value& value_;
};

std::int16_t argument(const Given& given, std::int16_t*) {
  return given.number();
}
std::wstring argument(const Given& given, const std::wstring_view*) {
  return given.text();
}
StringArray argument(const Given& given, const StringArray*) {
  return given.array();
}
const HostValue& argument(const Given& given, const HostValue*) {
  return given;
}

struct Property {
  void (*put)(ClsRandom& object, const Given& value);
  Value (*get)(ClsRandom& object);  // none when it cannot be read
};

#define NV_GET_Let(Name) nullptr
#define NV_GET_LetGet(Name) [](ClsRandom& object) { return Value(object.get##Name()); }
const std::map<std::wstring, Property> properties = {
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label)            \
  {L"" #Name,                                                             \
   {[](ClsRandom& object, const Given& value) {                           \
      using Argument = std::remove_reference_t<property::Type::Argument>; \
      object.let##Name(argument(value, static_cast<Argument*>(nullptr))); \
    },                                                                    \
    NV_GET_##Access(Name)}},
#define NV_METHOD(id, Name, Result)
#include "component/core/properties.def"
};

const Property& propertyOf(const std::wstring& name) {
  const auto found = properties.find(name);
  if (found == properties.end()) throw CallError(unknownName, L"Unknown name.");
  return found->second;
}

/// Has a run-time error arrive as a host sees it.
template <class Call>
auto called(Call&& call) {
  try {
    return call();
  } catch (const RuntimeError& error) {
    throw CallError(error.number(), std::wstring(error.description()));
  }
}

}  // namespace

void putProperty(ClsRandom& object, const std::wstring& name, const Value& value) {
  called([&] { propertyOf(name).put(object, Given(value)); });
}

Value getProperty(ClsRandom& object, const std::wstring& name) {
  const auto get = propertyOf(name).get;
  if (get == nullptr) throw CallError(memberNotFound, L"Member not found.");
  return called([&] { return get(object); });
}

const std::vector<std::wstring>& readableProperties() {
#define NV_NAME_Let(Name)
#define NV_NAME_LetGet(Name) L"" #Name,
  static const std::vector<std::wstring> names = {
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_NAME_##Access(Name)
#define NV_METHOD(id, Name, Result)
#include "component/core/properties.def"
  };
  return names;
}

}  // namespace nv::scenario
