#include "host/quartzcore/layer_properties.h"

#include <algorithm>

#include "host/quartzcore/values/transform_parts.h"

namespace host::quartzcore {
namespace {

using P = LayerProperties;
using Access = PropertyAccess<P>;

double number(const Value& value) {
  const auto* held = std::get_if<double>(&value);
  return held ? *held : 0;
}

template <auto Member>
constexpr Access whole(std::string_view key_path) {
  using T = std::remove_cvref_t<decltype(std::declval<P>().*Member)>;
  return {key_path, [](const P& p) -> Value { return p.*Member; },
          [](P& p, const Value& value) {
            if (const T* held = std::get_if<T>(&value)) p.*Member = *held;
          }};
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
    whole<&P::position>("position"),
    SONAVUE_PART("position.x", position.x),
    SONAVUE_PART("position.y", position.y),
    whole<&P::bounds>("bounds"),
    SONAVUE_PART("bounds.origin", bounds.origin),
    SONAVUE_PART("bounds.origin.x", bounds.origin.x),
    SONAVUE_PART("bounds.origin.y", bounds.origin.y),
    SONAVUE_PART("bounds.size", bounds.size),
    SONAVUE_PART("bounds.size.width", bounds.size.width),
    SONAVUE_PART("bounds.size.height", bounds.size.height),
    whole<&P::anchor>("anchorPoint"),
    whole<&P::z_position>("zPosition"),
    whole<&P::transform>("transform"),
    transform_part<&TransformParts::rotation>("transform.rotation"),
    transform_part<&TransformParts::rotation>("transform.rotation.z"),
    transform_scale(),
    transform_part<&TransformParts::scale_x>("transform.scale.x"),
    transform_part<&TransformParts::scale_y>("transform.scale.y"),
    transform_part<&TransformParts::x>("transform.translation.x"),
    transform_part<&TransformParts::y>("transform.translation.y"),
    whole<&P::opacity>("opacity"),
    whole<&P::corner_radius>("cornerRadius"),
    whole<&P::border_width>("borderWidth"),
    whole<&P::border_color>("borderColor"),
    whole<&P::background_color>("backgroundColor"),
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

const Access* layer_property(std::string_view key_path) {
  const auto* found =
      std::find_if(std::begin(kProperties), std::end(kProperties),
                   [&](const Access& access) { return access.key_path == key_path; });
  return found == std::end(kProperties) ? nullptr : found;
}

}  // namespace host::quartzcore
