#pragma once

#include "host/console/expression.h"
#include "host/console/globals.h"

namespace host::console {

/// Evaluates expressions over the live runtime, through each method's own type encoding.
class Evaluator {
 public:
  explicit Evaluator(const Globals& globals) : globals_(globals) {}

  /// Checks that every name and every selector in the expression is known. Sends nothing.
  Check check(const Expression& expression) const;

  /// Evaluates a checked expression. A message is sent only when its receiver responds to it and
  /// all its arguments fit; a message to nil returns nil.
  Result<Value> evaluate(const Expression& expression) const;

 private:
  Result<Value> value_of(const Expression& expression, const Name& name) const;
  Result<Value> value_of(const Expression& expression, const TextLiteral& literal) const;
  Result<Value> value_of(const Braces& braces) const;
  Result<Value> value_of(const Message& message) const;
  Result<Value> send(objc::Object receiver, const Message& message) const;

  const Globals& globals_;
};

}  // namespace host::console
