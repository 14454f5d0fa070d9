#include "tests/macho/loader/phone_symbols.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "objc/abi.h"
#include "platform/POSIX/uname.h"

namespace {

using macho_tests::find_phone_symbol;

constexpr const char* kSystem = "/usr/lib/libSystem.B.dylib";
constexpr const char* kRuntime = "/usr/lib/libobjc.A.dylib";

TEST(PhoneSymbols, TheRuntimeAndBlocksAreThoseOfThisProcess) {
  EXPECT_EQ(find_phone_symbol(kRuntime, "_class_getName"), reinterpret_cast<void*>(&class_getName));
  EXPECT_EQ(find_phone_symbol(kSystem, "__NSConcreteStackBlock"),
            static_cast<void*>(_NSConcreteStackBlock));
  EXPECT_EQ(find_phone_symbol(kSystem, "__Block_copy"), reinterpret_cast<void*>(&_Block_copy));
}

TEST(PhoneSymbols, TheRestOfTheSystemLibraryIsNotShared) {
  for (const char* other : {"_stat", "___error", "_open", "_dispatch_sync", "_objc_msgSendNow"})
    EXPECT_EQ(find_phone_symbol(kSystem, other), nullptr) << other;
  EXPECT_EQ(find_phone_symbol("/usr/lib/other.dylib", "_nobody_has_this"), nullptr);
  EXPECT_EQ(find_phone_symbol(kSystem, "free"), nullptr);
}

TEST(PhoneSymbols, UnameUsesThePhonesLayout) {
  constexpr std::size_t kLength = 256;
  auto names = std::make_unique<char[][kLength]>(5);
  std::memset(names.get(), 'x', 5 * kLength);
  using Function = int (*)(char(*)[kLength]);
  const auto phone_uname = reinterpret_cast<Function>(find_phone_symbol(kSystem, "_uname"));
  SystemName here;
  ASSERT_EQ(uname(&here), 0);
  ASSERT_EQ(phone_uname(names.get()), 0);
  EXPECT_STREQ(names[0], here.sysname);
  EXPECT_STREQ(names[3], here.version);
  EXPECT_STREQ(names[4], here.machine);
}

TEST(PhoneSymbols, SelectorsAreThoseOfThisProcess) {
  using Function = objc::Sel (*)(const char*);
  const auto register_name =
      reinterpret_cast<Function>(find_phone_symbol(kRuntime, "_sel_registerName"));
  EXPECT_EQ(register_name("aWord:"), sel_registerName("aWord:"));
}

TEST(PhoneSymbols, TheRuntimeReturnsWholeWords) {
  using Function = int (*)(objc::Sel, objc::Sel);
  const auto is_equal = reinterpret_cast<Function>(find_phone_symbol(kRuntime, "_sel_isEqual"));
  const objc::Sel word = sel_registerName("aWord:");
  EXPECT_EQ(is_equal(word, word), 1);
  EXPECT_EQ(is_equal(word, sel_registerName("anotherWord:")), 0);
}

TEST(PhoneSymbols, TheClassOfNilIsNil) {
  using Function = objc::Class (*)(objc::Id);
  const auto class_of = reinterpret_cast<Function>(find_phone_symbol(kRuntime, "_object_getClass"));
  EXPECT_EQ(class_of(nullptr), nullptr);
  const auto cls = reinterpret_cast<objc::Id>(objc_getClass("NSObject"));
  EXPECT_EQ(class_of(cls), objc_getMetaClass("NSObject"));
}

}  // namespace
