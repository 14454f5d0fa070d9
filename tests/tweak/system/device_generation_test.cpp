#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

/// A machine, and the values that the extension derives from its name.
struct Machine {
  DeviceModel model;
  int number;
  float seconds_of_lock;
  float allowance;
};

void PrintTo(const Machine& machine, std::ostream* out) {
  *out << machine.model.identifier;
}

constexpr Machine kMachines[] = {
    {{"iPhone3,1", "iPhone 4", 320, 480, 2, false}, 3, 2.2f, 0},
    {{"iPhone4,1", "iPhone 4S", 320, 480, 2, false}, 4, 2.1f, 0},
    {{"iPhone5,1", "iPhone 5", 320, 568, 2, false}, 5, 1, 60},
    {{"iPhone6,1", "iPhone 5S", 320, 568, 2, false}, 6, 1, 60},
    {{"iPhone7,2", "iPhone 6", 375, 667, 2, false}, 7, 1, 60},
    {{"iPhone7,1", "iPhone 6 Plus", 414, 736, 3, false}, 7, 1, 60},
    {{"iPad4,1", "iPad Air", 768, 1024, 2, true}, 4, 1, 0},
    {{"iPad3,4", "iPad", 768, 1024, 2, true}, 3, 1, 0},
    {{"iPhone10,3", "a later phone", 375, 667, 2, false}, 0, 1, 60},
    {{"iPhone13,1", "a far later phone", 375, 667, 2, false}, 3, 2.2f, 0},
};

class DeviceGeneration : public PanelTest, public ::testing::WithParamInterface<Machine> {
 protected:
  DeviceGeneration() : PanelTest(GetParam().model) { use_no_songs(); }
};

std::string name_of_machine(const ::testing::TestParamInfo<Machine>& info) {
  std::string name(info.param.model.identifier);
  name[name.find(',')] = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(, DeviceGeneration, ::testing::ValuesIn(kMachines), name_of_machine);

TEST_P(DeviceGeneration, SetsTheLockAndTheLayoutAllowance) {
  launch();
  EXPECT_EQ(objc::send<int>(application, "deviceNumber"_sel), GetParam().number);
  EXPECT_EQ(global<float>("time_wait"), GetParam().seconds_of_lock);
  EXPECT_EQ(global<float>("max"), GetParam().allowance);
}

class DeviceNumber : public PanelTest {};

TEST_F(DeviceNumber, IsReadFromTheLastThreeCharactersOfTheMachinesName) {
  load_extension();
  const auto phone = SpringBoard::alloc().init();
  const auto number = [&](std::string_view machine) {
    set_current_device({machine, "a machine", 375, 667, 2, false});
    return objc::send<int>(phone, "deviceNumber"_sel);
  };
  EXPECT_EQ(number("iPhone7,2"), 7);
  EXPECT_EQ(number("iPhone12,8"), 2);
  EXPECT_EQ(number("iPhone10,3"), 0);
  EXPECT_EQ(number("iPod5,1"), 5);
  EXPECT_EQ(number("iPad4,12"), 0);
  EXPECT_EQ(number("x86_64"), 0);
  EXPECT_EQ(number("simulator"), 0);
  EXPECT_EQ(number("123"), 123);
  EXPECT_EQ(number("8,1"), 8);
  phone.release();
}

}  // namespace
}  // namespace host::test
