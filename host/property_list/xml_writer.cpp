#include "host/property_list/xml_writer.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>
#include <string_view>
#include <vector>

#include "host/basics/utf16.h"
#include "host/basics/xml.h"
#include "host/property_list/builder.h"
#include "host/property_list/encoding.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDate.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

namespace host::property_list {
namespace {

constexpr std::string_view kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";

/// Without zeros, which no reader takes.
std::string utf8_of(NSString text) {
  std::vector<unichar> units(text.length());
  if (!units.empty()) text.getCharacters(units.data(), {0, units.size()});
  std::erase(units, 0);
  std::string bytes;
  utf16::append_utf8(bytes, units);
  return bytes;
}

/// The four digits of a year are all that readers know.
std::optional<std::string> iso_date(double since_1970) {
  using namespace std::chrono;
  constexpr double kFarthest = 4e11;
  if (!(std::abs(since_1970) < kFarthest)) return std::nullopt;
  const sys_seconds time{seconds(std::llround(since_1970))};
  const auto day = floor<days>(time);
  const year_month_day date(day);
  const hh_mm_ss clock(time - day);
  const int year = static_cast<int>(date.year());
  if (year < 0 || year > 9999) return std::nullopt;
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", year,
                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                     clock.hours().count(), clock.minutes().count(), clock.seconds().count());
}

class XmlWriter {
 public:
  std::optional<std::string> write(objc::Object list) {
    xml_ = kHead;
    if (!value(objc::cast<NSObject>(list))) return std::nullopt;
    xml_ += "</plist>\n";
    if (xml_.size() > kLargestList) return std::nullopt;
    return std::move(xml_);
  }

 private:
  void line(std::string_view text) {
    xml_.append(static_cast<std::size_t>(depth_), '\t');
    xml_ += text;
    xml_ += '\n';
  }
  void element(std::string_view name, std::string_view content) {
    line(fmt::format("<{0}>{1}</{0}>", name, content));
  }

  bool value(NSObject object) {
    const auto is = [&](objc::Class cls) { return cls && object.isKindOfClass(cls); };
    if (++count_ > kMostObjects || xml_.size() > kLargestList || !object) return false;
    if (is(NSString::cls())) {
      element("string", xml::escaped(utf8_of(objc::cast<NSString>(object))));
    } else if (is(NSNumber::cls())) {
      number(objc::cast<NSNumber>(object));
    } else if (is(NSData::cls())) {
      const auto data = objc::cast<NSData>(object);
      element("data", to_base64({static_cast<const char*>(data.bytes()), data.length()}));
    } else if (is(NSDate::cls())) {
      const auto date = iso_date(objc::cast<NSDate>(object).timeIntervalSince1970());
      if (!date) return false;
      element("date", *date);
    } else if (is(NSArray::cls())) {
      return array(objc::cast<NSArray>(object));
    } else {
      return is(NSDictionary::cls()) && dictionary(objc::cast<NSDictionary>(object));
    }
    return true;
  }

  void number(NSNumber value) {
    // A constant of the desktop's Foundation: its encoding is a small integer's.
    if (value.isKindOfClass(objc_getClass("NSBoolNumber")))
      return line(value.boolValue() ? "<true/>" : "<false/>");
    const char kind = *objc::send<const char*>(value, "objCType"_sel);
    if (kind == 'f') return element("real", fmt::format("{}", value.floatValue()));
    if (kind == 'd') return element("real", fmt::format("{}", value.doubleValue()));
    if (kind == 'Q') return element("integer", std::to_string(value.unsignedLongLongValue()));
    element("integer", std::to_string(value.integerValue()));
  }

  bool array(NSArray array) {
    if (array.count() == 0) return line("<array/>"), true;
    if (!enter("<array>")) return false;
    for (const objc::Object object : array.of()) {
      if (!value(objc::cast<NSObject>(object))) return false;
    }
    leave("</array>");
    return true;
  }

  bool dictionary(NSDictionary dictionary) {
    std::map<std::string, objc::Object> entries;
    for (const objc::Object key : dictionary.allKeys().of()) {
      if (!objc::cast<NSObject>(key).isKindOfClass(NSString::cls())) return false;
      entries.emplace(utf8_of(objc::cast<NSString>(key)), dictionary.objectForKey(key));
    }
    if (entries.empty()) return line("<dict/>"), true;
    if (!enter("<dict>")) return false;
    for (const auto& [key, object] : entries) {
      ++count_;
      element("key", xml::escaped(key));
      if (!value(objc::cast<NSObject>(object))) return false;
    }
    leave("</dict>");
    return true;
  }

  bool enter(std::string_view tag) {
    if (depth_ >= kDeepest) return false;
    line(tag);
    ++depth_;
    return true;
  }
  void leave(std::string_view tag) {
    --depth_;
    line(tag);
  }

  std::string xml_;
  int depth_ = 0;
  std::size_t count_ = 0;
};

}  // namespace

std::optional<std::string> xml_of(objc::Object list) {
  return XmlWriter().write(list);
}

}  // namespace host::property_list
