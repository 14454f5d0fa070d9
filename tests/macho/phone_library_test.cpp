#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "device/check/unwind.h"
#include "tests/macho/loader/loaded_image.h"

// The library that is run here must be the phone's, except for the processor.

namespace macho_tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

Image image_of(const std::string& preset, const char* file, Processor processor) {
  return Image(read_file(std::filesystem::path(PHONE_BUILDS) / preset / file), processor);
}

std::set<std::string> needed_symbols(const Image& image) {
  std::set<std::string> names;
  for (const Symbol& each : image.symbols())
    if (each.is_undefined()) names.insert(each.name);
  return names;
}

std::vector<std::string> bound_symbols(const Image& image) {
  std::set<std::string> names;
  for (const Binding& each : bindings(image))
    names.insert(each.symbol);
  return {names.begin(), names.end()};
}

TEST(PhoneLibrary, NeedsTheSameOnBothProcessors) {
  for (const char* file : {"Sonavue2.dylib", "SonavueSettings"}) {
    const Image phone = image_of("device", file, kArm64);
    const Image here = image_of("simulator", file, kX86);
    EXPECT_THAT(needed_symbols(phone), Not(IsEmpty())) << file;
    EXPECT_EQ(needed_symbols(phone), needed_symbols(here)) << file;
    EXPECT_EQ(phone.libraries(), here.libraries()) << file;
    EXPECT_EQ(phone.own_name(), here.own_name()) << file;
  }
}

TEST(PhoneLibrary, BindsEverythingItNeeds) {
  for (const auto& [preset, processor] : {std::pair("device", kArm64), {"simulator", kX86}}) {
    const Image image = image_of(preset, "Sonavue2.dylib", processor);
    const auto needed = needed_symbols(image);
    EXPECT_THAT(bound_symbols(image), testing::ElementsAreArray(needed)) << preset;
  }
}

TEST(PhoneLibrary, ExportsOnlyItsTable) {
  for (const auto& [preset, processor] : {std::pair("device", kArm64), {"simulator", kX86}})
    EXPECT_THAT(exports(image_of(preset, "Sonavue2.dylib", processor)),
                ElementsAre(Pair("_exported_globals", testing::Gt(0u))))
        << preset;
}

TEST(PhoneLibrary, ExceptionsPassThroughAllOfIt) {
  for (const auto& [preset, processor] : {std::pair("device", kArm64), {"simulator", kX86}}) {
    Findings findings;
    check_unwinding(preset, image_of(preset, "Sonavue2.dylib", processor), findings);
    EXPECT_THAT(findings, IsEmpty());
  }
}

TEST(PhoneLibrary, TheSettingsBundleIsMappedWithoutRunningAnything) {
  const Image bundle = image_of("simulator", "SonavueSettings", kX86);
  const LoadedImage loaded(bundle, [](const std::string&, const std::string&) {
    static int somewhere;
    return static_cast<void*>(&somewhere);
  });
  EXPECT_EQ(loaded.exported("_exported_globals"), nullptr);
  EXPECT_EQ(bundle.section("__DATA", "__mod_init_func"), nullptr);
}

}  // namespace
}  // namespace macho_tests
