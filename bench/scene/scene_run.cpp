#include "bench/scene/scene_run.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

#include "bench/scene/picture.h"
#include "bench/support/core_time.h"
#include "bench/support/figures.h"

namespace bench {
namespace {

constexpr std::array kKinds = {SceneKind::kPart, SceneKind::kFull, SceneKind::kBlur};

}  // namespace

const char* name_of(SceneKind kind) {
  return kind == SceneKind::kPart ? "part" : kind == SceneKind::kFull ? "full" : "blur";
}

SceneCommand scene_command(int count, char** words) {
  SceneCommand command;
  if (count < 2 || count > 3) return command;
  for (const SceneKind kind : kKinds) {
    if (std::string_view(words[1]) != name_of(kind)) continue;
    command.is_valid = true;
    command.kind = kind;
  }
  if (count == 3) command.picture = words[2];
  return command;
}

SceneTimes run_scene(const std::string& program, SceneKind kind,
                     const std::function<void(int frame)>& draw,
                     const std::function<void()>& between) {
  std::vector<double> seconds;
  for (int frame = 0; frame < kSceneFrames; ++frame) {
    const double start = process_seconds();
    draw(frame);
    seconds.push_back(process_seconds() - start);
    between();
  }
  std::sort(seconds.begin(), seconds.end());
  const SceneTimes times{seconds[seconds.size() / 2], seconds[seconds.size() * 95 / 100]};
  std::printf("%-8s %s: a frame takes %.3f ms of a core, 95 %% at most %.3f ms\n", program.c_str(),
              name_of(kind), times.median * 1e3, times.most * 1e3);
  std::fflush(stdout);
  const std::string name = std::string("scene.") + name_of(kind) + "." + program;
  note_figure(name + ".median_ms", times.median * 1e3);
  note_figure(name + ".most_ms", times.most * 1e3);
  return times;
}

}  // namespace bench
