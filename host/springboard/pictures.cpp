#include "host/springboard/pictures.h"

#include "host/springboard/configuration.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/screen_grid.h"

namespace host::springboard {

UIImage picture(NSString name) {
  const std::string path = configuration().pictures_folder + "/" + to_string(name) + ".png";
  return UIImage::imageWithContentsOfFile(to_ns(path));
}

UIImage picture_for_idiom(NSString name) {
  return picture(is_tablet_screen() ? name.stringByAppendingString("~ipad"_ns) : name);
}

}  // namespace host::springboard
