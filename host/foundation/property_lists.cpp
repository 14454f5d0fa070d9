#include "host/foundation/errors.h"
#include "host/foundation/exports.h"
#include "host/property_list/xml_writer.h"
#include "host/runtime/class_family.h"
#include "platform/Foundation/NSPropertyListSerialization.h"

// The desktop's Foundation writes files in an old text form and in the encoding of the process's
// locale; if this encoding lacks a single letter, the file is empty. Its XML has escapes that stand
// for themselves in any other reader, and it recurses without end in a list that contains itself.
// The platform writes XML in UTF-8, regardless of the locale.

namespace host::foundation {
namespace {

objc::Imp original_writer = nullptr;

NSData data_of_list(NSObject cls, NSObject list, NSUInteger form, NSUInteger options,
                    objc::Id* error) {
  const auto xml = property_list::xml_of(list);
  if (!xml) {
    if (error) *error = property_list_error("it is no property list").id();
    return nil;
  }
  if (form == NSPropertyListXMLFormat_v1_0) return NSData::dataWithBytes(xml->data(), xml->size());
  using Function = objc::Id (*)(objc::Id, objc::Sel, objc::Id, NSUInteger, NSUInteger, objc::Id*);
  return objc::wrap<NSData>(reinterpret_cast<Function>(original_writer)(
      cls.id(), "dataWithPropertyList:format:options:error:"_sel, list.id(), form, options, error));
}

BOOL write_to_file(NSObject self, NSString path, BOOL atomically) {
  const NSData data = NSPropertyListSerialization::dataFromPropertyList(
      self, NSPropertyListXMLFormat_v1_0, nullptr);
  return data && data.writeToFile(path, atomically);
}

}  // namespace

void export_property_lists() {
  if (original_writer) return;
  original_writer =
      replace_in_family<&data_of_list>(objc_getMetaClass("NSPropertyListSerialization"),
                                       "dataWithPropertyList:format:options:error:");
  for (const char* collection : {"NSDictionary", "NSArray"})
    replace_in_family<&write_to_file>(objc_getClass(collection), "writeToFile:atomically:");
}

}  // namespace host::foundation
