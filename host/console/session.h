#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "host/console/answer.h"
#include "host/console/evaluator.h"
#include "host/console/line_reader.h"
#include "host/console/phone.h"

namespace host::console {

/// Executes the lines of one console, one after the other. An invalid line changes nothing.
class Session {
 public:
  Session(Phone& phone, const Globals& globals) : phone_(phone), evaluator_(globals) {}

  Answer execute(std::string_view line);

  // Used by the commands.

  Phone& phone() { return phone_; }
  bool is_down(int finger) const { return fingers_.contains(finger); }
  /// Where a finger that is down was last.
  CGPoint place_of(int finger) const { return fingers_.at(finger); }
  void touch(int finger, TouchPhase phase, CGPoint point);

  /// Reads and checks an expression for later evaluation.
  Result<Expression> expression(LineReader& reader) const;
  const Evaluator& evaluator() const { return evaluator_; }
  /// The other process's answer to a line; empty while the console is in this process.
  std::optional<Answer> elsewhere(const std::string& line);
  /// `X Y`, or `on EXPR`: the centre of that view.
  Result<CGPoint> point(LineReader& reader);
  /// The centre of the view that an expression names.
  Result<CGPoint> point_on_view(LineReader& reader);

 private:
  Phone& phone_;
  Evaluator evaluator_;
  std::map<int, CGPoint> fingers_;
};

}  // namespace host::console
