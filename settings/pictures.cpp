#include "settings/pictures.h"

#include "ui/assets.h"

namespace sonavue {

UIImage imageFromFile(NSString name) {
  const NSString ending = "@2x.png"_ns;
  const NSString path = asset_path<"">().stringByAppendingString(name);
  return UIImage::imageWithContentsOfFile(
      name.hasSuffix(ending) ? path : path.stringByAppendingString(ending));
}

UIColor pattern_color() {
  return UIColor::colorWithPatternImage(imageFromFile("pattern"_ns));
}

}  // namespace sonavue
