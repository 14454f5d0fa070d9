#include "host/quartzcore/animations/timing_function.h"

#include <algorithm>
#include <string_view>
#include <utility>

__attribute__((visibility("default"), used)) NSString kCAMediaTimingFunctionLinear;
__attribute__((visibility("default"), used)) NSString kCAMediaTimingFunctionEaseIn;
__attribute__((visibility("default"), used)) NSString kCAMediaTimingFunctionEaseOut;
__attribute__((visibility("default"), used)) NSString kCAMediaTimingFunctionEaseInEaseOut;
__attribute__((visibility("default"), used)) NSString kCAMediaTimingFunctionDefault;

namespace host::quartzcore {
namespace {

constexpr std::pair<std::string_view, TimingCurve> kNamedCurves[] = {
    {"linear", TimingCurve{}},
    {"easeIn", TimingCurve::ease_in()},
    {"easeOut", TimingCurve::ease_out()},
    {"easeInEaseOut", TimingCurve::ease_in_ease_out()},
    {"default", TimingCurve::standard()},
};

CAMediaTimingFunction make(objc::Object cls, const TimingCurve& curve) {
  const auto made =
      objc::send<CAMediaTimingFunction>(objc::send<objc::Object>(cls, "alloc"_sel), "init"_sel);
  if (made) objc::state_of<TimingFunction>(made).curve = curve;
  return made.autorelease();
}

CAMediaTimingFunction with_name(objc::Object cls, NSString name) {
  const char* wanted = name ? name.UTF8String() : "linear";
  const auto* found = std::find_if(std::begin(kNamedCurves), std::end(kNamedCurves),
                                   [&](const auto& named) { return named.first == wanted; });
  if (found == std::end(kNamedCurves)) return nil;
  return make(cls, found->second);
}

CAMediaTimingFunction with_control_points(objc::Object cls, float x1, float y1, float x2,
                                          float y2) {
  return make(cls, {x1, y1, x2, y2});
}

}  // namespace

CAMediaTimingFunction TimingFunction::init_with_control_points(float x1, float y1, float x2,
                                                               float y2) {
  const auto made = super<CAMediaTimingFunction>("init"_sel);
  if (made) curve = {x1, y1, x2, y2};
  return made;
}

void TimingFunction::control_point(NSUInteger index, float* values) const {
  const double points[4][2] = {{0, 0}, {curve.x1, curve.y1}, {curve.x2, curve.y2}, {1, 1}};
  const auto* point = points[std::min<NSUInteger>(index, 3)];
  values[0] = static_cast<float>(point[0]);
  values[1] = static_cast<float>(point[1]);
}

TimingCurve curve_of(CAMediaTimingFunction function) {
  return function ? objc::state_of<TimingFunction>(function).curve : TimingCurve{};
}

void export_timing_function() {
  kCAMediaTimingFunctionLinear = "linear"_ns;
  kCAMediaTimingFunctionEaseIn = "easeIn"_ns;
  kCAMediaTimingFunctionEaseOut = "easeOut"_ns;
  kCAMediaTimingFunctionEaseInEaseOut = "easeInEaseOut"_ns;
  kCAMediaTimingFunctionDefault = "default"_ns;
  objc::ClassBuilder("CAMediaTimingFunction", "NSObject")
      .state<TimingFunction>()
      .class_method<&with_name>("functionWithName:")
      .class_method<&with_control_points>("functionWithControlPoints::::")
      .method<&TimingFunction::init_with_control_points>("initWithControlPoints::::")
      .method<&TimingFunction::control_point>("getControlPointAtIndex:values:")
      .finish();
}

}  // namespace host::quartzcore
