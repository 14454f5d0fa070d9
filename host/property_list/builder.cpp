#include "host/property_list/builder.h"

#include <fmt/format.h>

#include <cmath>

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDate.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

namespace host::property_list {
namespace {

constexpr unsigned kUtf8 = 4;
// In seconds. Dates farther away are in no calendar, and Foundation raises for NaN.
constexpr double kFarthestDate = 1e11;

objc::Object class_named(const char* name) {
  return objc::Object(objc_getClass(name));
}

objc::Object string_of_class(const char* cls, std::string_view utf8) {
  const auto made = objc::send<NSObject>(
      objc::send<objc::Object>(class_named(cls), "alloc"_sel), "initWithBytes:length:encoding:"_sel,
      static_cast<const void*>(utf8.data()), static_cast<NSUInteger>(utf8.size()), kUtf8);
  return made.autorelease();
}

}  // namespace

objc::Object Builder::text(std::string_view utf8) {
  const bool is_mutable = mutability_ == Mutability::kContainersAndLeaves;
  if (!is_mutable) return key(utf8);
  return count() ? string_of_class("NSMutableString", utf8) : nil;
}

objc::Object Builder::key(std::string_view utf8) {
  return count() ? string_of_class("NSString", utf8) : nil;
}

objc::Object Builder::data(std::string_view bytes) {
  if (!count()) return nil;
  const bool is_mutable = mutability_ == Mutability::kContainersAndLeaves;
  return objc::send<objc::Object>(
      class_named(is_mutable ? "NSMutableData" : "NSData"), "dataWithBytes:length:"_sel,
      static_cast<const void*>(bytes.data()), static_cast<NSUInteger>(bytes.size()));
}

objc::Object Builder::integer(std::int64_t value) {
  return count() ? NSNumber::numberWithInteger(value) : nil;
}

objc::Object Builder::unsigned_integer(std::uint64_t value) {
  return count() ? NSNumber::numberWithUnsignedLongLong(value) : nil;
}

objc::Object Builder::real(double value) {
  return count() ? NSNumber::numberWithDouble(value) : nil;
}

objc::Object Builder::boolean(bool value) {
  return count() ? NSNumber::numberWithBool(value) : nil;
}

objc::Object Builder::date(double since_1970) {
  if (!(std::abs(since_1970) < kFarthestDate)) return damaged("a date is in no calendar");
  return count() ? NSDate::dateWithTimeIntervalSince1970(since_1970) : nil;
}

objc::Object Builder::array(const Objects& objects) {
  if (!count()) return nil;
  const bool is_mutable = mutability_ != Mutability::kNone;
  return objc::send<objc::Object>(class_named(is_mutable ? "NSMutableArray" : "NSArray"),
                                  "arrayWithObjects:count:"_sel, objects.data(),
                                  static_cast<NSUInteger>(objects.size()));
}

objc::Object Builder::dictionary(const Objects& keys, const Objects& values) {
  if (!count()) return nil;
  const bool is_mutable = mutability_ != Mutability::kNone;
  return objc::send<objc::Object>(class_named(is_mutable ? "NSMutableDictionary" : "NSDictionary"),
                                  "dictionaryWithObjects:forKeys:count:"_sel, values.data(),
                                  keys.data(), static_cast<NSUInteger>(keys.size()));
}

bool Builder::count(std::size_t count) {
  if (count <= kMostObjects - count_) {
    count_ += count;
    return problem_.empty();
  }
  too_many();
  return false;
}

bool Builder::enter() {
  if (++depth_ <= kDeepest) return true;
  too_deep();
  return false;
}

objc::Object Builder::damaged(std::string problem) {
  if (problem_.empty()) problem_ = std::move(problem);
  return nil;
}

objc::Object Builder::exceeds(std::string problem) {
  if (problem_.empty()) exceeds_bounds_ = true;
  return damaged(std::move(problem));
}

objc::Object Builder::too_deep() {
  return exceeds(fmt::format("it is nested deeper than {} levels", kDeepest));
}

objc::Object Builder::too_many() {
  return exceeds(fmt::format("it holds more than {} objects", kMostObjects));
}

Reading Builder::reading(objc::Object list, Form form) const {
  if (!problem_.empty()) return {nil, form, problem_, exceeds_bounds_};
  return {list, form, list ? "" : "it is damaged", false};
}

}  // namespace host::property_list
