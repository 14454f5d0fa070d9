#include "tweak/system/device.h"

#include "platform/POSIX/uname.h"
#include "platform/UIKit/UIDevice.h"
#include "tweak/Sonavue2.h"

namespace sonavue {
namespace {

constexpr NSUInteger kSignificantCharacters = 3;
constexpr float kUsualWait = 1.0f;

}  // namespace

int deviceNumber(SpringBoard) {
  SystemName name;
  uname(&name);
  const NSString machine = NSString::stringWithUTF8String(name.machine);
  const NSRange all_but_the_last{0, machine.length() - kSignificantCharacters};
  return machine.stringByReplacingCharactersInRange(all_but_the_last, ""_ns).intValue();
}

void measure_device(SpringBoard self) {
  const int generation = objc::send<int>(self, "deviceNumber"_sel);
  time_wait = kUsualWait;
  if (generation == 3) time_wait = 2.2f;
  if (generation == 4) time_wait = 2.1f;
  if (generation == 3 || generation == 4) max = 0;
  if (UIDevice::currentDevice().model().hasPrefix("iPad"_ns)) time_wait = kUsualWait;
}

}  // namespace sonavue
