#include "host/quartzcore/layers/contents.h"

#include <algorithm>
#include <utility>

namespace host::quartzcore {
namespace {

constexpr std::pair<std::string_view, Gravity> kGravities[] = {
    {"resize", Gravity::Resize},
    {"resizeAspect", Gravity::ResizeAspect},
    {"resizeAspectFill", Gravity::ResizeAspectFill},
    {"center", Gravity::Center},
    {"top", Gravity::Top},
    {"bottom", Gravity::Bottom},
    {"left", Gravity::Left},
    {"right", Gravity::Right},
    {"topLeft", Gravity::TopLeft},
    {"topRight", Gravity::TopRight},
    {"bottomLeft", Gravity::BottomLeft},
    {"bottomRight", Gravity::BottomRight},
};

CGPoint gravity_point(Gravity gravity) {
  switch (gravity) {
    case Gravity::Top:
      return {0.5, 0};
    case Gravity::Bottom:
      return {0.5, 1};
    case Gravity::Left:
      return {0, 0.5};
    case Gravity::Right:
      return {1, 0.5};
    case Gravity::TopLeft:
      return {0, 0};
    case Gravity::TopRight:
      return {1, 0};
    case Gravity::BottomLeft:
      return {0, 1};
    case Gravity::BottomRight:
      return {1, 1};
    default:
      return {0.5, 0.5};
  }
}

}  // namespace

NSString name_of(Gravity gravity) {
  return NSString::stringWithUTF8String(kGravities[static_cast<int>(gravity)].first.data());
}

std::optional<Gravity> gravity_named(std::string_view name) {
  const auto* found = std::find_if(std::begin(kGravities), std::end(kGravities),
                                   [&](const auto& named) { return named.first == name; });
  return found == std::end(kGravities) ? std::nullopt : std::optional(found->second);
}

void Contents::show(objc::Object object) {
  object_.reset(object);
  image_ = image_of(object);
  density = 1;
}

CGRect Contents::place_of(const Image& image, const CGRect& bounds) const {
  CGSize size{image.width() / (scale * density), image.height() / (scale * density)};
  const double fit_x = bounds.size.width / size.width;
  const double fit_y = bounds.size.height / size.height;
  switch (gravity) {
    case Gravity::Resize:
      return bounds;
    case Gravity::ResizeAspect:
      size = {size.width * std::min(fit_x, fit_y), size.height * std::min(fit_x, fit_y)};
      break;
    case Gravity::ResizeAspectFill:
      size = {size.width * std::max(fit_x, fit_y), size.height * std::max(fit_x, fit_y)};
      break;
    default:
      break;
  }
  const CGPoint at = gravity_point(gravity);
  return {bounds.min_x() + (bounds.size.width - size.width) * at.x,
          bounds.min_y() + (bounds.size.height - size.height) * at.y, size.width, size.height};
}

}  // namespace host::quartzcore
