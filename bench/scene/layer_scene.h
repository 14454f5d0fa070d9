#pragma once

#include <optional>

#include "bench/scene/scene_run.h"
#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/service/layer_service.h"
#include "objc/autorelease_pool.h"

namespace bench {

/// The scene as layers of ours. Only one may exist at a time.
class LayerScene {
 public:
  explicit LayerScene(SceneKind kind);
  ~LayerScene();
  LayerScene(const LayerScene&) = delete;
  LayerScene& operator=(const LayerScene&) = delete;

  void draw(int frame);
  /// Draws the same frame again, whole.
  void draw_anew();
  const host::quartzcore::Surface& surface() const { return compositor_.surface(); }
  std::uint64_t blur_count() const { return compositor_.blur_count(); }

 private:
  void add_background();
  void add_icons();
  void add_artwork();
  CALayer add_picture(const struct ScenePicture& picture, double left, double top, bool is_opaque);
  void add_text(const char* text, int size, int left, int top);
  void render();

  const SceneKind kind_;
  host::SteppedClock clock_;
  host::RunLoop loop_;
  std::optional<host::quartzcore::LayerService> service_;
  objc::AutoreleasePool pool_;
  CALayer root_;
  CALayer background_;
  CALayer artwork_;
  host::quartzcore::Compositor compositor_;
};

}  // namespace bench
