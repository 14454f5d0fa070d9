#include "objc/class_builder.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/song_page.h"
#include "tests/tweak/told_property.h"

namespace host::test {
namespace {

using ::testing::Contains;
using ::testing::Each;

constexpr const char* kEmptyCover = "/Library/Application Support/Sonavue/empty_cover.png";

/// Rows of the list of all songs and of the playing album's table. They look the same.
class SongCell : public SongPage {
 protected:
  using MadeCell = MethodSpy<"initWithFrame:reuseIdentifier:",
                             UITableViewCell(UITableViewCell, CGRect, NSString)>;
  using LoadedFile = MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)>;
  using DrawnArtwork = MethodSpy<"imageWithSize:", UIImage(MPMediaItemArtwork, CGSize)>;

  static objc::Class image_meta_class() {
    return objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls()));
  }
  static std::vector<std::string> files(const LoadedFile& spy) {
    std::vector<std::string> found;
    for (const auto& [path] : spy.calls())
      found.push_back(text(path));
    return found;
  }
  /// The cell that a table's data source returns for the first song with that title.
  UITableViewCell cell_of(const char* table, const char* items, const std::string& title) const {
    const auto listed = titles(items);
    const auto row = std::find(listed.begin(), listed.end(), title) - listed.begin();
    const auto asked = global<UITableView>(table);
    return objc::cast<UITableViewDataSource>(asked.dataSource())
        .cellForRowAtIndexPath(asked, NSIndexPath::indexPathForRow(row, 0));
  }
  void expect_look(UITableViewCell shown) const {
    EXPECT_EQ(text(shown.reuseIdentifier()), "Cell");
    EXPECT_EQ(text(shown.textLabel().font().fontName()), "HelveticaNeue");
    EXPECT_EQ(shown.textLabel().font().pointSize(), 10);
    EXPECT_EQ(shown.textLabel().numberOfLines(), 4);
    EXPECT_EQ(rgba(shown.textLabel().textColor()), (Rgba{0, 0, 1, 1}));
    EXPECT_EQ(rgba(shown.backgroundColor()).alpha, 0);
    EXPECT_EQ(rgba(shown.selectedBackgroundView().backgroundColor()), (Rgba{1, 1, 1, 0.3}));
    const CGAffineTransform scaled = shown.imageView().transform();
    EXPECT_EQ(scaled.a, 0.6);
    EXPECT_EQ(scaled.d, 0.6);
    EXPECT_EQ(scaled.b + scaled.c + scaled.tx + scaled.ty, 0);
    EXPECT_TRUE(shown.imageView().image());
  }
  void launch_blue() {
    write_preferences(text_entry("font_tint", "blue") + "<key>checked</key><true/>");
    launch();
  }
};

TEST_F(SongCell, HasTheLookOfBothTables) {
  launch_blue();
  play("Bravo");
  for (const std::string& title : titles("songItems")) {
    SCOPED_TRACE(title);
    const auto shown = cell_of("tableView", "songItems", title);
    expect_look(shown);
    EXPECT_EQ(text(shown.textLabel().text()), title);
  }
  for (const char* title : {"Alpha", "Charlie"}) {
    SCOPED_TRACE(title);
    const auto shown = cell_of("tablev", "songArtist", title);
    expect_look(shown);
    EXPECT_EQ(text(shown.textLabel().text()), title);
  }
}

TEST_F(SongCell, TakesTheTextColourAtTheNextReload) {
  launch_blue();
  open_song_page();
  expect_look(cell(0));
  change_settings(text_entry("font_tint", "green"));
  for (NSInteger row = 0; row < rows(); ++row)
    EXPECT_EQ(rgba(cell(row).textLabel().textColor()), (Rgba{0, 1, 0, 1}));
}

TEST_F(SongCell, IsMadeOnceAndReused) {
  for (int song = 0; song < 60; ++song)
    add_title("Song " + std::to_string(song));
  list_cloud_songs();
  load_extension();
  const MadeCell made(UITableViewCell::cls());
  launch();
  open_song_page();
  ASSERT_EQ(rows(), 65);
  for (int step = 0; step < 100; ++step) {
    list().setContentOffset({0, kHeader + 20.0 * step});
    advance(RunLoop::kFrame);
  }
  EXPECT_GE(made.count(), 8);
  EXPECT_LE(made.count(), 24);
  for (const auto& [frame, identifier] : made.calls()) {
    EXPECT_EQ(frame, (CGRect{0, 0, 100, 400}));
    EXPECT_EQ(text(identifier), "Cell");
  }
}

TEST_F(SongCell, ShowsTheArtworkAtThirtyPoints) {
  launch();
  const DrawnArtwork drawn(MPMediaItemArtwork::cls());
  const LoadedFile loaded(image_meta_class());
  const auto shown = cell_of("tableView", "songItems", "Alpha");
  ASSERT_GE(drawn.count(), 1);
  EXPECT_THAT(drawn.calls(), Each(std::tuple(CGSize{30, 30})));
  EXPECT_EQ(shown.imageView().image().size(), (CGSize{30, 30}));
  EXPECT_EQ(loaded.count(), 0);
}

TEST_F(SongCell, WithoutArtworkShowsTheEmptyCover) {
  launch();
  const LoadedFile loaded(image_meta_class());
  const auto shown = cell_of("tableView", "songItems", "Delta");
  EXPECT_THAT(files(loaded), Contains(kEmptyCover));
  EXPECT_TRUE(shown.imageView().image());
}

UIImage no_image(objc::Object, CGSize) {
  return nil;
}

TEST_F(SongCell, ArtworkThatCannotBeDrawnIsTheEmptyCover) {
  objc::ClassBuilder("BrokenArtwork", "NSObject").method<&no_image>("imageWithSize:").finish();
  const auto broken = objc::send<objc::Object>(
      objc::send<objc::Object>(objc::Object(objc_getClass("BrokenArtwork")), "alloc"_sel),
      "init"_sel);
  const ToldProperty artwork("Alpha", MPMediaItemPropertyArtwork, broken);
  launch();
  const LoadedFile loaded(image_meta_class());
  const auto shown = cell_of("tableView", "songItems", "Alpha");
  EXPECT_THAT(files(loaded), Contains(kEmptyCover));
  EXPECT_TRUE(shown.imageView().image());
}

TEST_F(SongCell, WithoutATitleShowsTheArtistAndWithoutEitherNoData) {
  const ToldProperty charlie("Charlie", MPMediaItemPropertyTitle, nil);
  const ToldProperty echo("Echo", MPMediaItemPropertyTitle, nil);
  const ToldProperty echo_by("Echo", MPMediaItemPropertyArtist, nil);
  launch();
  open_song_page();
  EXPECT_EQ(rows(), 5);
  EXPECT_THAT(texts(),
              ::testing::UnorderedElementsAre("Alpha", "Bravo", "Delta", "Xenia", "No Data"));
}

TEST_F(SongCell, AReusedCellForgetsItsPreviousSong) {
  launch();
  open_song_page();
  const auto picture = cell(row_of("Alpha")).imageView().image();
  picture.retain();
  EXPECT_EQ(picture.size(), (CGSize{30, 30}));
  objc::send<>(global<NSMutableArray>("songItems"), "removeObjectAtIndex:"_sel, NSUInteger{0});
  list().reloadData();
  EXPECT_THAT(texts(), ::testing::ElementsAre("Bravo", "Charlie", "Delta", "Echo"));
  for (NSInteger row = 0; row < rows(); ++row)
    EXPECT_NE(cell(row).imageView().image(), picture);
  picture.release();
}

}  // namespace
}  // namespace host::test
