#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "host/console/answer.h"
#include "host/console/evaluator.h"
#include "host/console/line_reader.h"
#include "host/console/phone.h"

namespace host::console {

/// Carries out the lines of one console, one after the other. A line that cannot be understood
/// changes nothing.
class Session {
 public:
  Session(Phone& phone, const Globals& globals) : phone_(phone), evaluator_(globals) {}

  Answer execute(std::string_view line);

  // What the commands are made of.

  Phone& phone() { return phone_; }
  bool is_down(int finger) const { return fingers_.contains(finger); }
  void touch(int finger, TouchPhase phase, CGPoint point);

  /// A checked expression whose value can be asked for later.
  Result<Expression> expression(LineReader& reader) const;
  const Evaluator& evaluator() const { return evaluator_; }
  /// The answer of the process that the console has turned to; nothing while that is this one.
  std::optional<Answer> elsewhere(const std::string& line);
  /// `X Y`, or `on EXPR`: the centre of that view.
  Result<CGPoint> point(LineReader& reader);
  /// The centre of the view that an expression names.
  Result<CGPoint> point_on_view(LineReader& reader);

 private:
  Phone& phone_;
  Evaluator evaluator_;
  std::set<int> fingers_;
};

}  // namespace host::console
