#include <cstdlib>

#include "host/basics/console_line.h"
#include "host/console/session.h"
#include "objc/autorelease_pool.h"

using namespace host::console;

namespace {

/// A phone on which nothing happens.
class StillPhone final : public Phone {
 public:
  void advance(double) override {}
  void touch(int, TouchPhase, CGPoint) override {}
  Refusal wheel(CGPoint, CGPoint, WheelKind) override { return std::nullopt; }
  Refusal right_click(CGPoint) override { return std::nullopt; }
  std::optional<CGPoint> centre_of(objc::Object) override { return CGPoint{1, 2}; }
  Refusal type(std::string_view) override { return std::nullopt; }
  Refusal key(std::string_view) override { return std::nullopt; }
  Refusal press(Button) override { return std::nullopt; }
  Refusal button(Button, ButtonPhase) override { return "refused"; }
  Refusal system(SystemEvent, std::string_view) override { return std::nullopt; }
  Refusal gesture(std::string_view) override { return std::nullopt; }
  Refusal screenshot(const std::string&) override { return std::nullopt; }
  Refusal compare(const std::string&) override { return std::nullopt; }
  Refusal record(const std::string&) override { return std::nullopt; }
  Refusal end_recording() override { return "refused"; }
  Refusal unrest() override { return std::nullopt; }
  Refusal talk_to(std::string_view) override { return std::nullopt; }
};

int counter = 3;
const ExportedGlobal kTable[] = {{"counter", "i", &counter}, {nullptr, nullptr, nullptr}};

/// Everything but sending messages, which reach code that trusts its caller.
void check(const Session& session, std::string_view line) {
  const objc::AutoreleasePool pool;
  LineReader reader(line);
  reader.word();
  while (!reader.at_end()) {
    const auto made = session.expression(reader);
    if (!made) {
      if (describe(made.problem(), line).empty()) std::abort();
      return;
    }
    if (made->offset >= made->end || made->end > line.size()) std::abort();
    if (!reader.comparison()) return;
  }
}

/// Whether a reader of lines finds the end of this answer: all its lines but the last are indented.
bool is_one_answer(std::string_view text) {
  for (auto end = text.find('\n'); end != text.npos; end = text.find('\n')) {
    if (!text.starts_with(host::kListedLine)) return false;
    text.remove_prefix(end + 1);
  }
  return !text.starts_with(host::kListedLine);
}

}  // namespace

// Lines as they reach the console, which gives each one answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StillPhone phone;
  Globals globals;
  globals.add_table(kTable);
  Session session(phone, globals);
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  while (!rest.empty()) {
    const auto line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    const bool sends = line.find('[') != line.npos;
    if (sends) check(session, line);
    if (!sends && !is_one_answer(session.execute(line).line())) std::abort();
  }
  return 0;
}
