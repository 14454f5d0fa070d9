#include "settings/texts.h"
#include "tests/settings/pages_test.h"
#include "tests/settings/replaced_method.h"

// The specifiers of the pages' rows.

namespace sonavue::test {
namespace {

std::string name_of(objc::Sel selector) {
  return selector ? sel_getName(selector) : "-";
}

std::vector<std::string>& made_rows() {
  static std::vector<std::string> rows;
  return rows;
}
PSSpecifier note_row(objc::Object, NSString name, objc::Object target, objc::Sel set, objc::Sel get,
                     objc::Class detail, PSCellType cell, objc::Class edit) {
  made_rows().push_back(std::string(name.UTF8String()) + ": " + std::to_string(cell) + " " +
                        (target ? class_getName(objc::class_of(target.id())) : "-") + " " +
                        name_of(set) + " " + name_of(get) + " " +
                        (detail ? class_getName(detail) : "-") + (edit ? " edited" : ""));
  const PSSpecifier made = PSSpecifier::alloc().init().autorelease();
  made.setName(name);
  return made;
}

class PageRows : public PagesTest {
 protected:
  std::vector<std::string> rows_of(const char* class_name) {
    const ReplacedMethod<&note_row> noted(
        objc_getMetaClass("PSSpecifier"),
        "preferenceSpecifierNamed:target:set:get:detail:cell:edit:");
    const objc::Object cls(objc_getClass(class_name));
    const auto made =
        objc::send<PSListController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel)
            .autorelease();
    made_rows().clear();
    made.specifiers();
    return made_rows();
  }
};

TEST_F(PageRows, OnTheRootPageOneRowHasAValueAndTwoAreLinks) {
  const std::string target = "SonavueSettingsController";
  EXPECT_THAT(rows_of("SonavueSettingsController"),
              testing::UnorderedElementsAre(
                  ": 0 " + target + " - - -",
                  "Enable Sonavue: 6 " + target + " setValue:forSpecifier: getValue: -",
                  "Configuration: 1 " + target + " - - styleController",
                  "Contacts: 1 " + target + " - - creatorsController"));
}

TEST_F(PageRows, OnTheStylePageOnlyTwoRowsHaveNoValue) {
  const std::string value = " styleController setValue:forSpecifier: getValue: ";
  EXPECT_THAT(
      rows_of("styleController"),
      testing::UnorderedElementsAre(
          "Guided setup: 1 styleController - - -", "Apex support: 6" + value + "-",
          "Artwork as background: 6" + value + "-", "Square artwork: 6" + value + "-",
          "Music in the cloud: 6" + value + "-", "Automatic colors: 6" + value + "-",
          "Activator gesture: 1 styleController - - -", "Blur: 2" + value + "PSListItemsController",
          "Play button ring: 2" + value + "PSListItemsController",
          "Tint color: 2" + value + "PSListItemsController",
          "Text color: 2" + value + "PSListItemsController"));
}

TEST_F(PageRows, OnTheCreditsPageThereAreOnlyTwoHeaders) {
  const std::string header = ": 0 creatorsController - - -";
  EXPECT_THAT(rows_of("creatorsController"), testing::ElementsAre(header, header));
}

TEST_F(PageRows, TheConfigurationPageHasOneLink) {
  EXPECT_THAT(
      rows_of("configurationController"),
      testing::UnorderedElementsAre("Style: 1 configurationController - - styleController"));
}

TEST_F(PageRows, EveryRowOfTheStylePageIsExplained) {
  open("styleController");
  const char* const expected[] = {"desc_setup", "desc_apex",       "desc_cover",    "desc_square",
                                  "desc_cloud", "desc_legibility", "desc_gest",     "desc_blur",
                                  "desc_play",  "desc_tint",       "desc_font_tint"};
  NSUInteger index = 0;
  for (const char* identifier : expected) {
    const auto group = objc::cast<PSSpecifier>(page.specifiers().objectAtIndex(index));
    const auto text = objc::cast<NSString>(group.propertyForKey("footerText"_ns));
    ASSERT_TRUE(text) << identifier;
    EXPECT_STREQ(text.UTF8String(),
                 Translator(NSString::stringWithUTF8String(identifier)).UTF8String());
    index += 2;
  }
}

}  // namespace
}  // namespace sonavue::test
