#include "tests/support/private_bus.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/basics/descriptor.h"

namespace host::test {
namespace {

constexpr int kLongestWaitMilliseconds = 20'000;
constexpr int kLookEvery = 5;

constexpr const char* kConfiguration =
    "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\""
    " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
    "<busconfig><type>session</type><listen>{}</listen><auth>EXTERNAL</auth>"
    "<policy context=\"default\"><allow send_destination=\"*\"/><allow "
    "receive_sender=\"*\"/><allow own=\"*\"/></policy>"
    "</busconfig>";

/// Starts a program with these standard streams.
pid_t start_program(const std::vector<std::string>& arguments, int output, int errors) {
  std::vector<char*> pointers;
  for (const std::string& argument : arguments)
    pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child != 0) return child;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  execvp(pointers[0], pointers.data());
  _exit(127);
}

std::pair<Descriptor, Descriptor> make_pipe() {
  int ends[2] = {-1, -1};
  EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

template <class Value>
Value read_basic(sd_bus_message* message, char type) {
  Value value{};
  sd_bus_message_read_basic(message, type, &value);
  return value;
}

std::string next_value(sd_bus_message* message);

std::string values_until_end(sd_bus_message* message) {
  std::string all;
  while (sd_bus_message_at_end(message, 0) == 0) {
    if (!all.empty()) all += ' ';
    all += next_value(message);
  }
  return all;
}

std::string inside(sd_bus_message* message, char type, const char* contents) {
  sd_bus_message_enter_container(message, type, contents);
  std::string all;
  if (type == SD_BUS_TYPE_DICT_ENTRY) {
    all = next_value(message) + ": ";
    all += next_value(message);
  } else {
    all = values_until_end(message);
  }
  sd_bus_message_exit_container(message);
  if (type == SD_BUS_TYPE_ARRAY)
    return (contents[0] == '{' ? "{" : "[") + all + (contents[0] == '{' ? "}" : "]");
  return type == SD_BUS_TYPE_STRUCT ? "(" + all + ")" : all;
}

std::string next_value(sd_bus_message* message) {
  char type = 0;
  const char* contents = nullptr;
  sd_bus_message_peek_type(message, &type, &contents);
  switch (type) {
    case SD_BUS_TYPE_STRING:
    case SD_BUS_TYPE_OBJECT_PATH:
    case SD_BUS_TYPE_SIGNATURE:
      return fmt::format("\"{}\"", read_basic<const char*>(message, type));
    case SD_BUS_TYPE_BOOLEAN:
      return read_basic<int>(message, type) != 0 ? "true" : "false";
    case SD_BUS_TYPE_BYTE:
      return fmt::to_string(read_basic<std::uint8_t>(message, type));
    case SD_BUS_TYPE_INT32:
      return fmt::to_string(read_basic<std::int32_t>(message, type));
    case SD_BUS_TYPE_UINT32:
      return fmt::to_string(read_basic<std::uint32_t>(message, type));
    case SD_BUS_TYPE_INT64:
      return fmt::to_string(read_basic<std::int64_t>(message, type));
    case SD_BUS_TYPE_DOUBLE:
      return fmt::to_string(read_basic<double>(message, type));
    default:
      return inside(message, type, contents);
  }
}

}  // namespace

PrivateBus::PrivateBus(const char* variable) : variable_(variable, address()) {
  media_tests::write_bytes(folder_ / "bus.conf",
                           fmt::format(fmt::runtime(kConfiguration), address()));
  start();
}

void PrivateBus::start() {
  auto [reading, writing] = make_pipe();
  // It complains about limits that do not matter here.
  const Descriptor nowhere(open("/dev/null", O_WRONLY | O_CLOEXEC));
  daemon_ = start_program(
      {"dbus-daemon", "--config-file=" + folder_ / "bus.conf", "--nofork", "--print-address"},
      writing.get(), nowhere.get());
  writing.reset();
  char letter = 0;
  // The address is printed when the socket is there.
  ASSERT_EQ(read(reading.get(), &letter, 1), 1) << "there is no dbus-daemon";
}

void PrivateBus::kill() {
  if (daemon_ == 0) return;
  ::kill(daemon_, SIGKILL);
  waitpid(std::exchange(daemon_, 0), nullptr, 0);
}

void PrivateBus::freeze() const {
  ::kill(daemon_, SIGSTOP);
  waitpid(daemon_, nullptr, WUNTRACED);
}

void PrivateBus::thaw() const {
  ::kill(daemon_, SIGCONT);
}

bool run_until(RunLoop& loop, const std::function<bool()>& has_happened) {
  loop.run_ready();
  for (int waited = 0; !has_happened(); waited += kLookEvery) {
    if (waited >= kLongestWaitMilliseconds) return false;
    poll(nullptr, 0, kLookEvery);
    loop.run_ready();
  }
  return true;
}

std::string contents_of(sd_bus_message* message) {
  sd_bus_message_rewind(message, 1);
  return values_until_end(message);
}

std::string BusPeer::ask(const desktop::Bus::Method& method, const desktop::Bus::Fill& fill) {
  std::optional<std::string> answer;
  const auto question = bus.call(method, fill, [&](const desktop::Answer& given) {
    const auto* error = sd_bus_message_get_error(given.message());
    answer = error ? std::string("error: ") + error->name : contents_of(given.message());
  });
  return run_until(loop_, [&] { return answer.has_value(); }) ? *answer : "no answer";
}

bool BusPeer::take_name(const char* name) {
  std::optional<bool> is_taken;
  const auto question = bus.request_name(name, [&](const desktop::Answer& answer) {
    is_taken = contents_of(answer.message()) == "1";
  });
  return run_until(loop_, [&] { return is_taken.has_value(); }) && *is_taken;
}

void BusPeer::record(const char* path) {
  keep(bus.on_signal(nullptr, nullptr, nullptr,
                     [this, path = std::string(path)](sd_bus_message* signal) {
                       const char* const from = sd_bus_message_get_path(signal);
                       if (!from || path != from) return;
                       signals_.push_back(std::string(sd_bus_message_get_member(signal)) + " " +
                                          contents_of(signal));
                     }));
  catch_up_with("org.freedesktop.DBus");
}

void BusPeer::catch_up_with(const char* service) {
  ask({service, "/", "org.freedesktop.DBus.Peer", "Ping"});
}

Output run_program(RunLoop& loop, const std::vector<std::string>& arguments) {
  auto [reading, writing] = make_pipe();
  const pid_t child = start_program(arguments, writing.get(), writing.get());
  writing.reset();
  Output output;
  RunLoop::Id watch = 0;
  watch = loop.watch(reading.get(), [&] {
    char bytes[4096];
    const ssize_t count = read(reading.get(), bytes, sizeof bytes);
    if (count > 0) {
      output.text.append(bytes, static_cast<std::size_t>(count));
    } else {
      loop.unwatch(std::exchange(watch, 0));
    }
  });
  if (!run_until(loop, [&] { return watch == 0; })) {
    loop.unwatch(watch);
    ::kill(child, SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status)) output.status = WEXITSTATUS(status);
  return output;
}

}  // namespace host::test
