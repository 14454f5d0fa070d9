#include "host/property_list/reader.h"

#include <fmt/format.h>

#include "host/property_list/encoding.h"
#include "host/property_list/forms.h"
#include "objc/autorelease_pool.h"
#include "objc/ref.h"

namespace host::property_list {
namespace {

using Parser = objc::Object (*)(std::string_view, Builder&);

Reading parse(std::string_view bytes, Form form, Parser parser, Mutability mutability) {
  Builder builder(mutability);
  objc::Ref<objc::Object> list;
  {
    // Releases at once what was made and is not in the list.
    const objc::AutoreleasePool pool;
    list.reset(parser(bytes, builder));
  }
  return builder.reading(objc::send<objc::Object>(list.leak(), "autorelease"_sel), form);
}

Reading not_characters() {
  return {nil, Form::kText, "it is neither UTF-8 nor UTF-16", false};
}

}  // namespace

Reading too_large() {
  return {nil, Form::kText, fmt::format("it is larger than {} MB", kLargestList >> 20), true};
}

Reading read(std::string_view bytes, Mutability mutability) {
  if (bytes.size() > kLargestList) return too_large();
  if (is_binary(bytes)) return parse(bytes, Form::kBinary, &read_binary, mutability);
  if (bytes.empty()) return {nil, Form::kText, "it is empty", false};
  const auto text = utf8_from_file(bytes);
  if (!text) return not_characters();
  if (is_xml(*text)) return parse(*text, Form::kXml, &read_xml, mutability);
  return parse(*text, Form::kText, &read_text, mutability);
}

Reading read_texts(std::string_view bytes) {
  if (bytes.size() > kLargestList) return too_large();
  const auto text = utf8_from_file(bytes);
  if (!text) return not_characters();
  return parse(*text, Form::kText, &read_entries, Mutability::kContainers);
}

}  // namespace host::property_list
