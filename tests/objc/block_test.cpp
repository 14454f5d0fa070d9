#include "objc/block.h"

#include <gtest/gtest.h>

#include <memory>

#include "objc/ref.h"
#include "platform/Foundation/NSObject.h"

namespace {

TEST(Block, RunsItsCallableWithArgumentsAndResult) {
  const auto twice = objc::block([](int value) { return value * 2; });
  const objc::Block<int(int)> borrowed = twice;
  EXPECT_EQ(borrowed(21), 42);
}

TEST(Block, NilDoesNothingAndReturnsZero) {
  const objc::Block<int(int)> nothing;
  EXPECT_FALSE(nothing);
  EXPECT_EQ(nothing(3), 0);
  objc::Block<void(BOOL)>()(YES);
}

objc::OwnedBlock<void()> keep(objc::Block<void()> block) {
  return objc::OwnedBlock(block);
}

TEST(Block, CapturedObjectsSurviveTheCopyAndEndWithTheLastRelease) {
  auto counter = std::make_shared<int>(0);
  {
    objc::OwnedBlock<void()> kept = keep(objc::block([counter] { ++*counter; }));
    EXPECT_EQ(counter.use_count(), 2);
    objc::OwnedBlock<void()> again = kept;
    EXPECT_EQ(counter.use_count(), 2) << "a heap block is shared, not copied again";
    kept = {};
    again.get()();
    EXPECT_EQ(*counter, 1);
  }
  EXPECT_EQ(counter.use_count(), 1);
}

TEST(Block, CapturedReferencesKeepTheirObjectAlive) {
  NSObject object = NSObject::alloc().init();
  {
    auto kept = keep(objc::block([ref = objc::Ref<NSObject>::retain(object)] {}));
    EXPECT_EQ(object.retainCount(), 2u);
  }
  EXPECT_EQ(object.retainCount(), 1u);
  object.release();
}

TEST(Block, HandlesArePassedAsBarePointers) {
  NSObject object = NSObject::alloc().init();
  NSObject seen;
  const auto remember = objc::block([&seen](NSObject given) { seen = given; });
  const objc::Block<void(NSObject)> borrowed = remember;
  borrowed(object);
  EXPECT_EQ(seen, object);
  object.release();
}

TEST(Block, CarriesItsSignature) {
  const auto made = objc::block([](BOOL, double) {});
  const objc::Block<void(BOOL, double)> borrowed = made;
  const auto* header = static_cast<const objc::block_abi::Header*>(borrowed.get());
  EXPECT_STREQ(header->descriptor->signature, "v@?cd");
}

}  // namespace
