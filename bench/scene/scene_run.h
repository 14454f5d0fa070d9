#pragma once

#include <functional>
#include <string>

namespace bench {

enum class SceneKind {
  /// The artwork moves, and only what this changes is drawn.
  kPart,
  /// The background moves, too, so that everything changes.
  kFull,
  /// The same with a background that is blurred in each frame.
  kBlur,
};

/// "part", "full" or "blur".
const char* name_of(SceneKind kind);

struct SceneCommand {
  bool is_valid = false;
  SceneKind kind = SceneKind::kPart;
  /// Where to write the last frame as PNG; empty for nowhere.
  std::string picture;
};

/// Understands `part|full|blur [PICTURE.png]`.
SceneCommand scene_command(int count, char** words);

/// In seconds of processor time of the whole process.
struct SceneTimes {
  double median = 0;
  double most = 0;  // of 95 % of all frames
};

/// Draws all frames, prints the times and notes them as figures of `program`. `between` runs after
/// each frame and is not measured.
SceneTimes run_scene(
    const std::string& program, SceneKind kind, const std::function<void(int frame)>& draw,
    const std::function<void()>& between = [] {});

}  // namespace bench
