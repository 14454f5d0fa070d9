#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/foundation/exports.h"
#include "host/property_list/reader.h"
#include "host/property_list/xml_writer.h"
#include "host/runtime/log.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSObject.h"

using namespace host::property_list;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  spdlog::set_level(spdlog::level::off);
  host::foundation::export_foundation();
  return 0;
}

namespace {

/// What is written is what was read. Dates lose their fractions, and after that nothing.
void write_and_read(objc::Object list) {
  const auto xml = xml_of(list);
  if (!xml) return;
  const auto again = read(*xml);
  if (!again.list || xml_of(again.list) != xml) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const objc::AutoreleasePool pool;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto reading = read(bytes);
  if (!reading.list == reading.problem.empty()) std::abort();
  if (reading.exceeds_bounds && reading.list) std::abort();

  // Mutability changes no value. Comparing walks the whole list, so its size must be within the
  // bounds.
  const auto copy = read(bytes, Mutability::kContainersAndLeaves);
  if (!copy.list != !reading.list) std::abort();
  if (reading.list) {
    objc::cast<NSObject>(reading.list).isEqual(copy.list);
    write_and_read(reading.list);
  }

  read_texts(bytes);
  return 0;
}
