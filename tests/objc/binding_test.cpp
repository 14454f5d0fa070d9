#include <gtest/gtest.h>

#include <string>

#include "objc/bound.h"
#include "platform/Foundation/NSObject.h"

namespace {

// Nothing calls these methods: being bound is enough to be in the table.
struct TestBoundOnly : objc::Bound<TestBoundOnly, "TestBoundOnly", NSObject> {
  int size() const { return call<"size", int>(); }
  static NSObject shared() { return call_class<"shared", NSObject>(); }
};

const objc::Binding* find(const std::string& selector) {
  for (auto* at = objc::Binding::first; at; at = at->next) {
    if (std::string(at->class_name) == "TestBoundOnly" && at->selector == selector) return at;
  }
  return nullptr;
}

TEST(BindingTable, ContainsEveryBoundMethodThatAHeaderDeclares) {
  const objc::Binding* size = find("size");
  ASSERT_TRUE(size);
  EXPECT_STREQ(size->encoding, "i@:");
  EXPECT_FALSE(size->of_class);
  const objc::Binding* shared = find("shared");
  ASSERT_TRUE(shared);
  EXPECT_STREQ(shared->encoding, "@@:");
  EXPECT_TRUE(shared->of_class);
}

}  // namespace
