#include <cstdlib>
#include <string>

#include "host/console/marshal.h"
#include "host/console/print.h"
#include "host/console/type_encoding.h"

using namespace host::console;

namespace {

/// Checks that members lie one after the other inside their structure.
void check(const Type& type) {
  std::size_t end = 0;
  for (const Type& member : type.members) {
    if (member.offset < end || member.offset % member.alignment != 0) std::abort();
    end = member.offset + member.size;
    check(member);
  }
  if (end > type.size) std::abort();
}

/// Reads a zero of this type, prints it and writes it back.
void pass(const Type& type) {
  check(type);
  if (type.size == 0) return;
  std::string bytes(type.size, '\0');
  const Value value = load(type, bytes.data());
  if (text_of(value).empty() || store(value, type, bytes.data())) std::abort();
  if (bytes != std::string(type.size, '\0')) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string encoding(reinterpret_cast<const char*>(data), size);
  if (const auto type = parse_type(encoding.c_str())) pass(*type);
  const auto types = parse_method_types(encoding.c_str());
  if (!types) return 0;
  pass(types->result);
  for (const Type& type : types->arguments)
    pass(type);
  return 0;
}
