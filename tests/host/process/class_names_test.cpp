#include "host/process/class_names.h"

#include <gmock/gmock.h>

#include <set>

#include "host/process/device_images.h"
#include "tests/support/host_test.h"

extern "C" int objc_getClassList(objc::Class* buffer, int capacity);

namespace host::test {
namespace {

using Names = std::set<std::string_view>;

/// Without the parts of Foundation that no library names.
Names all_names() {
  std::vector<objc::Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  objc_getClassList(classes.data(), static_cast<int>(classes.size()));
  Names names;
  for (const objc::Class cls : classes)
    if (!std::string_view(class_getName(cls)).starts_with("__")) names.insert(class_getName(cls));
  return names;
}

/// The names of the classes that `load` registers.
template <class Load>
Names names_made_by(Load load) {
  const Names before = all_names();
  load();
  Names made = all_names();
  for (const std::string_view name : before)
    made.erase(name);
  return made;
}

using ClassNames = HostTest;

// A class that is missing from a list has no symbol, and no compiled library can refer to it.
TEST_F(ClassNames, EachFrameworkRegistersTheClassesOfItsList) {
  process::start_program({});
  for (const DeviceImage& image : process::device_images()) {
    for (const std::string_view needed : image.needs)
      load_device_image(needed);
    const Names made = names_made_by([&image] { load_device_image(image.path); });
    EXPECT_EQ(made, Names(image.classes.begin(), image.classes.end())) << image.path;
  }
#define NAME(name) #name,
  EXPECT_EQ(names_made_by(&process::start_home_screen), (Names{SONAVUE_HOME_SCREEN_CLASSES(NAME)}));
#undef NAME
}

}  // namespace
}  // namespace host::test
