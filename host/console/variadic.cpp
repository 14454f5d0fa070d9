#include "host/console/variadic.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace host::console {
namespace {

// A method's types name only the arguments that are always there, so the selectors are listed.
constexpr std::string_view kListSelectors[] = {
    "appearanceWhenContainedIn:",
    "arrayWithObjects:",
    "dictionaryWithObjectsAndKeys:",
    "initWithObjects:",
    "initWithObjectsAndKeys:",
    "initWithTitle:delegate:cancelButtonTitle:destructiveButtonTitle:otherButtonTitles:",
    "initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:",
    "orderedSetWithObjects:",
    "setWithObjects:",
};
constexpr std::string_view kOtherSelectors[] = {
    "appendFormat:",
    "decodeValuesOfObjCTypes:",
    "encodeValuesOfObjCTypes:",
    "error:",
    "expressionWithFormat:",
    "handleFailureInFunction:file:lineNumber:description:",
    "handleFailureInMethod:object:file:lineNumber:description:",
    "initWithFormat:",
    "initWithFormat:locale:",
    "localizedStringWithFormat:",
    "predicateWithFormat:",
    "raise:format:",
    "stringByAppendingFormat:",
    "stringWithFormat:",
};

bool is_nil(const Expression& argument) {
  const auto* name = std::get_if<Name>(&argument.content);
  return name && name->text == "nil";
}

}  // namespace

std::optional<std::string> refusal_of_variadic(const Message& message) {
  const auto is_in = [&message](const auto& selectors) {
    return std::ranges::find(selectors, message.selector) != std::end(selectors);
  };
  if (is_in(kOtherSelectors)) {
    return fmt::format("{} takes any number of arguments, which the console cannot send",
                       message.selector);
  }
  if (!is_in(kListSelectors) || is_nil(message.arguments.back())) return std::nullopt;
  return fmt::format("{} takes a list that ends with nil, and the console can send only the nil",
                     message.selector);
}

}  // namespace host::console
