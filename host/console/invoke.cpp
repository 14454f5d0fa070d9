#include "host/console/invoke.h"

#include <ffi.h>

#include <algorithm>
#include <cstring>
#include <deque>

#include "host/console/marshal.h"

namespace host::console {
namespace {

/// Describes types to libffi and keeps the descriptions alive.
class CallTypes {
 public:
  ffi_type* of(const Type& type) {
    switch (type.code) {
      case 'v':
        return &ffi_type_void;
      case 'f':
        return &ffi_type_float;
      case 'd':
        return &ffi_type_double;
      case '{':
        return structure(type);
      default:
        return type.is_integer() ? integer(type) : &ffi_type_pointer;
    }
  }

 private:
  static ffi_type* integer(const Type& type) {
    const bool is_signed = std::string_view("csilq").find(type.code) != std::string_view::npos;
    switch (type.size) {
      case 1:
        return is_signed ? &ffi_type_sint8 : &ffi_type_uint8;
      case 2:
        return is_signed ? &ffi_type_sint16 : &ffi_type_uint16;
      case 4:
        return is_signed ? &ffi_type_sint32 : &ffi_type_uint32;
      default:
        return is_signed ? &ffi_type_sint64 : &ffi_type_uint64;
    }
  }

  ffi_type* structure(const Type& type) {
    std::vector<ffi_type*> elements;
    for (const Type& member : type.members)
      elements.push_back(of(member));
    elements.push_back(nullptr);
    auto& kept = elements_.emplace_back(std::move(elements));
    return &structures_.emplace_back(ffi_type{0, 0, FFI_TYPE_STRUCT, kept.data()});
  }

  std::deque<std::vector<ffi_type*>> elements_;
  std::deque<ffi_type> structures_;
};

// libffi widens a small integer result to a whole register; this narrows it to its own size.
void narrow(const Type& type, void* result) {
  if (!type.is_integer() || type.size >= sizeof(ffi_arg)) return;
  ffi_arg whole;
  std::memcpy(&whole, result, sizeof whole);
  const auto low = static_cast<std::uint32_t>(whole);
  const auto low_half = static_cast<std::uint16_t>(whole);
  const auto low_byte = static_cast<std::uint8_t>(whole);
  if (type.size == 4) std::memcpy(result, &low, 4);
  if (type.size == 2) std::memcpy(result, &low_half, 2);
  if (type.size == 1) std::memcpy(result, &low_byte, 1);
}

}  // namespace

Result<Value> invoke(objc::Id receiver, objc::Sel selector, const MethodTypes& types,
                     std::span<void* const> arguments) {
  CallTypes call_types;
  std::vector<ffi_type*> argument_types = {&ffi_type_pointer, &ffi_type_pointer};
  std::vector<void*> values = {&receiver, &selector};
  for (const Type& type : types.arguments)
    argument_types.push_back(call_types.of(type));
  values.insert(values.end(), arguments.begin(), arguments.end());

  ffi_cif call;
  const auto count = static_cast<unsigned>(argument_types.size());
  if (ffi_prep_cif(&call, FFI_DEFAULT_ABI, count, call_types.of(types.result),
                   argument_types.data()) != FFI_OK) {
    return Problem{"the console cannot send this message", 0};
  }
  const auto room = std::max(types.result.size, sizeof(ffi_arg));
  std::vector<std::max_align_t> result(room / sizeof(std::max_align_t) + 1);
  try {
    ffi_call(&call, objc::message_function(receiver, selector), result.data(), values.data());
  } catch (...) {
    // The platform's exceptions are not C++ objects, so no details can be read.
    return Problem{"the message raised an exception", 0};
  }
  narrow(types.result, result.data());
  return load(types.result, result.data());
}

}  // namespace host::console
