#include "host/springboard/common/pictures.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/model/strings.h"

namespace host::springboard {

UIImage picture(NSString name) {
  const std::string path = configuration().pictures_folder + "/" + to_string(name) + ".png";
  return UIImage::imageWithContentsOfFile(to_ns(path));
}

UIImage picture_for_idiom(NSString name) {
  return picture(is_tablet_screen() ? name.stringByAppendingString("~ipad"_ns) : name);
}

}  // namespace host::springboard
