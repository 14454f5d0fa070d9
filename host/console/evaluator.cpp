#include "host/console/evaluator.h"

#include <fmt/format.h>

#include <cstdlib>

#include "host/console/invoke.h"
#include "host/console/marshal.h"
#include "host/console/variadic.h"
#include "platform/Foundation/NSString.h"

// Every class that implements a selector registers it with its method's type encoding.
extern "C" objc::Sel* sel_copyTypedSelectorList(const char* name, unsigned* count);

namespace host::console {
namespace {

bool anyone_implements(const std::string& selector) {
  unsigned count = 0;
  std::free(sel_copyTypedSelectorList(selector.c_str(), &count));
  return count > 0;
}

std::optional<Value> constant(std::string_view name) {
  if (name == "YES") return boolean_value(true);
  if (name == "NO") return boolean_value(false);
  if (name == "nil") return Value{NilValue{}};
  return std::nullopt;
}

/// Converted arguments, each in its own storage.
class Arguments {
 public:
  std::optional<std::string> add(const Value& value, const Type& type) {
    auto& room = rooms_.emplace_back(type.size / sizeof(std::max_align_t) + 1);
    pointers_.push_back(room.data());
    return store(value, type, room.data());
  }
  std::span<void* const> pointers() const { return pointers_; }

 private:
  std::vector<std::vector<std::max_align_t>> rooms_;
  std::vector<void*> pointers_;
};

}  // namespace

Check Evaluator::check(const Expression& expression) const {
  if (const auto* name = std::get_if<Name>(&expression.content)) {
    if (constant(name->text) || globals_.has(name->text) || objc_getClass(name->text.c_str()))
      return std::nullopt;
    return Problem{fmt::format("unknown name: {}", name->text), expression.offset};
  }
  if (const auto* braces = std::get_if<Braces>(&expression.content)) {
    for (const Expression& element : braces->elements) {
      if (auto problem = check(element)) return problem;
    }
  }
  if (const auto* message = std::get_if<Message>(&expression.content)) {
    if (auto problem = check(*message->receiver)) return problem;
    if (!anyone_implements(message->selector)) {
      return Problem{fmt::format("no class implements {}", message->selector),
                     message->selector_offset};
    }
    if (auto refusal = refusal_of_variadic(*message)) {
      return Problem{std::move(*refusal), message->selector_offset};
    }
    for (const Expression& argument : message->arguments) {
      if (auto problem = check(argument)) return problem;
    }
  }
  return std::nullopt;
}

Result<Value> Evaluator::evaluate(const Expression& expression) const {
  return std::visit(
      [&]<class Content>(const Content& content) -> Result<Value> {
        if constexpr (std::is_same_v<Content, Number>) {
          return Value{content};
        } else if constexpr (std::is_same_v<Content, Braces> || std::is_same_v<Content, Message>) {
          return value_of(content);
        } else {
          return value_of(expression, content);
        }
      },
      expression.content);
}

Result<Value> Evaluator::value_of(const Expression& expression, const Name& name) const {
  if (auto value = constant(name.text)) return *value;
  if (globals_.has(name.text)) {
    if (auto value = globals_.value(name.text)) return *value;
    return Problem{fmt::format("{} has a type that cannot be read", name.text), expression.offset};
  }
  if (const objc::Class cls = objc_getClass(name.text.c_str())) return Value{cls};
  return Problem{fmt::format("unknown name: {}", name.text), expression.offset};
}

Result<Value> Evaluator::value_of(const Expression& expression, const TextLiteral& literal) const {
  const auto text = NSString::stringWithUTF8String(literal.text.c_str());
  if (!text) return Problem{"text is not UTF-8", expression.offset};
  return object_value(text);
}

Result<Value> Evaluator::value_of(const Braces& braces) const {
  Structure members;
  for (const Expression& element : braces.elements) {
    auto value = evaluate(element);
    if (!value) return value;
    members.push_back(std::move(*value));
  }
  return Value{std::move(members)};
}

Result<Value> Evaluator::value_of(const Message& message) const {
  const auto receiver = evaluate(*message.receiver);
  if (!receiver) return receiver;
  if (receiver->as<NilValue>()) return Value{NilValue{}};
  if (const auto* object = receiver->as<objc::Object>()) return send(*object, message);
  if (const auto* cls = receiver->as<objc::Class>()) return send(objc::Object(*cls), message);
  return Problem{"only objects and classes receive messages", message.receiver->offset};
}

Result<Value> Evaluator::send(objc::Object receiver, const Message& message) const {
  const objc::Class cls = objc::class_of(receiver.id());
  const objc::Sel selector = sel_registerName(message.selector.c_str());
  const objc::Method method = class_getInstanceMethod(cls, selector);
  if (!method) {
    return Problem{fmt::format("{} does not respond to {}", class_getName(cls), message.selector),
                   message.selector_offset};
  }
  const auto types = parse_method_types(method_getTypeEncoding(method));
  if (!types || types->arguments.size() != message.arguments.size()) {
    return Problem{fmt::format("{} has a type that the console cannot send", message.selector),
                   message.selector_offset};
  }
  Arguments arguments;
  for (std::size_t i = 0; i < message.arguments.size(); ++i) {
    const auto value = evaluate(message.arguments[i]);
    if (!value) return value;
    if (auto refusal = arguments.add(*value, types->arguments[i]))
      return Problem{std::move(*refusal), message.arguments[i].offset};
  }
  auto result = invoke(receiver.id(), selector, *types, arguments.pointers());
  if (!result) return Problem{result.problem().text, message.selector_offset};
  return result;
}

}  // namespace host::console
