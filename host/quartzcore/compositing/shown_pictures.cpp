#include "host/quartzcore/compositing/shown_pictures.h"

#include <utility>

namespace host::quartzcore {

// A layer that has moved shows something else: the row of a list is used for another song.
const Image* ShownPictures::picture_of(const RenderNode& node) const {
  const Image* own = node.layer->model.contents.image();
  if (!own || !own->is_awaited()) return own;
  const auto found = shown_.find(node.serial);
  if (found == shown_.end()) return own;
  const Shown& before = found->second;
  if (before.bounds != node.properties.bounds || before.to_device != node.to_device) return own;
  const Image* stand_in = image_of(before.contents.get());
  if (stand_in == own || stand_in->is_awaited()) return own;
  // Nothing else asks for pixels that are not painted.
  own->surface_for_frame();
  return stand_in;
}

void ShownPictures::note(const std::vector<RenderNode>& nodes) {
  ByLayer now;
  for (const RenderNode& node : nodes) {
    if (!node.image || !node.image->is_promised() || node.image->is_awaited()) continue;
    const Contents& contents = node.layer->model.contents;
    const auto before = shown_.find(node.serial);
    const bool is_own = node.image == contents.image();
    now.insert(
        {node.serial,
         {is_own ? objc::Ref<objc::Object>::retain(contents.object()) : before->second.contents,
          node.properties.bounds, node.to_device}});
  }
  shown_ = std::move(now);
}

}  // namespace host::quartzcore
