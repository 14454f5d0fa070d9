#include "tests/support/sound_sink.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <utility>

namespace media_tests {
namespace {

constexpr int channels = 2;
// Far below any tone of a test, far above what an encoder leaves of silence.
constexpr int quietest_sound = 64;

void pause_for(int milliseconds) {
  ::poll(nullptr, 0, milliseconds);
}

void wait_until(const std::function<bool()>& is_done, const char* what) {
  constexpr int look_every = 20;
  constexpr int longest = 30'000;
  for (int waited = 0; !is_done(); waited += look_every) {
    if (waited >= longest) throw std::runtime_error{what};
    pause_for(look_every);
  }
}

pid_t spawn(std::vector<std::string> words, const std::string& output) {
  std::vector<char*> arguments;
  for (std::string& word : words)
    arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), flags, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int result =
      posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (result != 0) throw std::runtime_error{words[0] + " cannot be started"};
  return process;
}

void end(pid_t& process) {
  if (process == 0) return;
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
  process = 0;
}

}  // namespace

SoundSink::SoundSink(int rate) {
  const std::string device = "module-null-sink sink_name=device format=s16le channels=2 rate=";
  // The server keeps to this folder, whatever else plays sound on this machine.
  ::setenv("PULSE_RUNTIME_PATH", folder_.path().c_str(), 1);
  ::setenv("PULSE_STATE_PATH", folder_.path().c_str(), 1);
  ::setenv("PULSE_SERVER", server().c_str(), 1);
  server_process_ =
      spawn({"pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "-L",
             device + std::to_string(rate), "-L",
             "module-native-protocol-unix auth-anonymous=1 socket=" + (folder_ / "native")},
            "/dev/null");
  wait_until([this] { return std::filesystem::exists(folder_ / "native"); },
             "pulseaudio does not answer");
  recorder_process_ = spawn({"parec", "--device=device.monitor", "--raw", "--format=s16le",
                             "--channels=2", "--latency-msec=50", "--rate=" + std::to_string(rate)},
                            folder_ / "heard");
  wait_until([this] { return std::filesystem::file_size(folder_ / "heard") > 0; },
             "parec records nothing");
}

SoundSink::~SoundSink() {
  end(recorder_process_);
  end(server_process_);
  ::unsetenv("PULSE_SERVER");
}

std::vector<std::int16_t> SoundSink::heard() const {
  const std::string bytes = read_bytes(folder_ / "heard");
  std::vector<std::int16_t> left(bytes.size() / sizeof(std::int16_t) / channels);
  for (std::size_t i = 0; i < left.size(); ++i)
    std::memcpy(&left[i], bytes.data() + i * channels * sizeof(std::int16_t), sizeof left[i]);
  const auto is_sound = [](std::int16_t sample) { return std::abs(sample) >= quietest_sound; };
  const auto first = std::ranges::find_if(left, is_sound);
  const auto last = std::find_if(left.rbegin(), left.rend(), is_sound).base();
  return first < last ? std::vector(first, last) : std::vector<std::int16_t>{};
}

void SoundSink::wait_for_silence(int milliseconds) const {
  std::size_t before = 0;
  wait_until(
      [&] {
        pause_for(milliseconds);
        const std::size_t now = heard().size();
        return now > 0 && std::exchange(before, now) == now;
      },
      "the music does not end");
}

std::string SoundSink::players() const {
  const std::string list = folder_ / "players";
  const pid_t process = spawn({"pactl", "list", "sink-inputs"}, list);
  ::waitpid(process, nullptr, 0);
  return read_bytes(list);
}

void SoundSink::disappear() {
  end(server_process_);
}

}  // namespace media_tests
