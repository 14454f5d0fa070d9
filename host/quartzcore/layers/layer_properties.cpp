#include "host/quartzcore/layers/layer_properties.h"

#include "host/quartzcore/values/transform_parts.h"

namespace host::quartzcore {
namespace {

using P = LayerProperties;
using Access = PropertyAccess<P>;

double number(const Value& value) {
  const auto* held = std::get_if<double>(&value);
  return held ? *held : 0;
}

template <auto Part>
constexpr Access transform_part(std::string_view key_path) {
  return {key_path, [](const P& p) -> Value { return parts_of(p.transform).*Part; },
          [](P& p, const Value& value) {
            TransformParts parts = parts_of(p.transform);
            parts.*Part = number(value);
            p.transform = transform_of(parts);
          }};
}

constexpr Access transform_scale() {
  return {"transform.scale", [](const P& p) -> Value { return parts_of(p.transform).scale_x; },
          [](P& p, const Value& value) {
            TransformParts parts = parts_of(p.transform);
            parts.scale_x = parts.scale_y = number(value);
            p.transform = transform_of(parts);
          }};
}

#define SONAVUE_PART(path, place)                                                     \
  Access {                                                                            \
    path, [](const P& p) -> Value { return p.place; }, [](P& p, const Value& value) { \
      using T = decltype(p.place);                                                    \
      if (const T* held = std::get_if<T>(&value)) p.place = *held;                    \
    }                                                                                 \
  }

constexpr Access kProperties[] = {
    access_to<&P::position>("position"),
    SONAVUE_PART("position.x", position.x),
    SONAVUE_PART("position.y", position.y),
    access_to<&P::bounds>("bounds"),
    SONAVUE_PART("bounds.origin", bounds.origin),
    SONAVUE_PART("bounds.origin.x", bounds.origin.x),
    SONAVUE_PART("bounds.origin.y", bounds.origin.y),
    SONAVUE_PART("bounds.size", bounds.size),
    SONAVUE_PART("bounds.size.width", bounds.size.width),
    SONAVUE_PART("bounds.size.height", bounds.size.height),
    access_to<&P::anchor>("anchorPoint"),
    access_to<&P::z_position>("zPosition"),
    access_to<&P::transform>("transform"),
    transform_part<&TransformParts::rotation>("transform.rotation"),
    transform_part<&TransformParts::rotation>("transform.rotation.z"),
    transform_scale(),
    transform_part<&TransformParts::scale_x>("transform.scale.x"),
    transform_part<&TransformParts::scale_y>("transform.scale.y"),
    transform_part<&TransformParts::x>("transform.translation.x"),
    transform_part<&TransformParts::y>("transform.translation.y"),
    access_to<&P::opacity>("opacity"),
    access_to<&P::corner_radius>("cornerRadius"),
    access_to<&P::border_width>("borderWidth"),
    access_to<&P::border_color>("borderColor"),
    access_to<&P::background_color>("backgroundColor"),
};

#undef SONAVUE_PART

}  // namespace

CGAffineTransform LayerProperties::to_super() const {
  const CGPoint pivot{bounds.origin.x + anchor.x * bounds.size.width,
                      bounds.origin.y + anchor.y * bounds.size.height};
  CGAffineTransform result = CATransform3DGetAffineTransform(transform);
  const CGPoint moved = CGPointApplyAffineTransform(pivot, result);
  result.tx += position.x - moved.x;
  result.ty += position.y - moved.y;
  // The transform's own translation moves the layer about its position.
  result.tx += transform.m41;
  result.ty += transform.m42;
  return result;
}

CGRect LayerProperties::frame() const {
  const CGRect box = CGRectApplyAffineTransform(bounds, to_super());
  // Without a transform the size is exact to the last bit: moving a layer by its frame must not
  // change its bounds.
  return CATransform3DIsIdentity(transform) ? CGRect{box.origin, bounds.size} : box;
}

LayerProperties LayerProperties::placed_in(const CGRect& frame) const {
  CGAffineTransform linear = CATransform3DGetAffineTransform(transform);
  const CGPoint translation{linear.tx, linear.ty};
  linear.tx = linear.ty = 0;
  CGSize size = frame.size;
  if (!CGAffineTransformIsIdentity(linear)) {
    // The size whose transformed box fits the frame; exact if there is no rotation.
    const CGRect box = CGRectApplyAffineTransform({0, 0, frame.size.width, frame.size.height},
                                                  CGAffineTransformInvert(linear));
    size = box.size;
  }
  const CGRect placed = CGRectApplyAffineTransform(
      {-anchor.x * size.width, -anchor.y * size.height, size.width, size.height}, linear);
  LayerProperties result = *this;
  result.bounds = {bounds.origin, size};
  result.position = {frame.origin.x - placed.origin.x - translation.x,
                     frame.origin.y - placed.origin.y - translation.y};
  return result;
}

const Access* layer_property(std::string_view key_path) {
  return find_access(kProperties, key_path);
}

}  // namespace host::quartzcore
