#include <gmock/gmock.h>

#include "host/media_player/item_store.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSValue.h"
#include "tests/host/media_player/media_player_test.h"

namespace {

using host::test::text;
using host::test::titles;
using testing::ElementsAre;

class MediaLibraryClasses : public host::test::MediaPlayerTest {
 protected:
  MediaLibraryClasses() : query_(objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init())) {
    start();
  }

  std::string number(MPMediaItem item, NSString property) const {
    return text(objc::cast<NSNumber>(item.valueForProperty(property)).stringValue());
  }

  NSArray found(objc::Object value, NSString property) const {
    const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
    query.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(value, property));
    return query.items();
  }

  objc::Ref<MPMediaQuery> query_;
};

TEST_F(MediaLibraryClasses, AQueryWithoutPredicatesReturnsAllSongsInLibraryOrder) {
  EXPECT_THAT(titles(query_->items()), ElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
}

TEST_F(MediaLibraryClasses, ASongHasOneItemHoweverItIsFound) {
  const MPMediaItem bravo = item("Bravo");
  EXPECT_EQ(query_->items().objectAtIndex(1), bravo);
  EXPECT_EQ(found("Bravo"_ns, MPMediaItemPropertyTitle).objectAtIndex(0), bravo);
  EXPECT_TRUE(query_->items().containsObject(bravo));
  EXPECT_FALSE(bravo.isEqual(item("Alpha")));
}

TEST_F(MediaLibraryClasses, AnItemAnswersEveryProperty) {
  const MPMediaItem alpha = item("Alpha");
  EXPECT_EQ(text(alpha.valueForProperty(MPMediaItemPropertyArtist)), "Xenia");
  EXPECT_EQ(text(alpha.valueForProperty(MPMediaItemPropertyAlbumTitle)), "One");
  EXPECT_EQ(number(alpha, MPMediaItemPropertyMediaType), "1");
  const auto duration =
      objc::cast<NSNumber>(alpha.valueForProperty(MPMediaItemPropertyPlaybackDuration));
  EXPECT_NEAR(duration.doubleValue(), 8, 0.01);
  const auto cloud = objc::cast<NSNumber>(alpha.valueForProperty(MPMediaItemPropertyIsCloudItem));
  ASSERT_TRUE(cloud);
  EXPECT_FALSE(cloud.boolValue());
  EXPECT_NE(number(alpha, MPMediaItemPropertyPersistentID), "0");
  EXPECT_EQ(number(alpha, MPMediaItemPropertyAlbumPersistentID),
            number(item("Bravo"), MPMediaItemPropertyAlbumPersistentID));
  EXPECT_NE(number(alpha, MPMediaItemPropertyAlbumPersistentID),
            number(item("Charlie"), MPMediaItemPropertyAlbumPersistentID));
}

TEST_F(MediaLibraryClasses, APropertyIsAlsoFoundByAnEqualString) {
  const NSString spelt = NSString::stringWithUTF8String("albumTitle");
  EXPECT_EQ(text(item("Charlie").valueForProperty(spelt)), "Two");
}

TEST_F(MediaLibraryClasses, APropertyThatASongLacksIsNil) {
  const MPMediaItem delta = item("Delta");
  EXPECT_FALSE(delta.valueForProperty(MPMediaItemPropertyArtist));
  EXPECT_FALSE(delta.valueForProperty(MPMediaItemPropertyAlbumTitle));
  EXPECT_FALSE(delta.valueForProperty(MPMediaItemPropertyArtwork));
  EXPECT_FALSE(delta.valueForProperty("no such property"_ns));
}

TEST_F(MediaLibraryClasses, AnAlbumIsFoundByItsIdentifierAsDecimalDigits) {
  const auto album =
      objc::cast<NSNumber>(item("Alpha").valueForProperty(MPMediaItemPropertyAlbumPersistentID));
  EXPECT_THAT(titles(found(album.stringValue(), MPMediaItemPropertyAlbumPersistentID)),
              ElementsAre("Alpha", "Bravo"));
  EXPECT_THAT(titles(found(album, MPMediaItemPropertyAlbumPersistentID)),
              ElementsAre("Alpha", "Bravo"));
}

TEST_F(MediaLibraryClasses, TheSongsOfAnAlbumAreInLibraryOrder) {
  host::media::SongTags last;
  last.title = "Aardvark";
  last.artist = "Xenia";
  last.album = "One";
  last.track_number = 9;
  media_tests::write_song(song_path("z.flac"), last);
  start();
  EXPECT_THAT(titles(found(item("Alpha").valueForProperty(MPMediaItemPropertyAlbumPersistentID),
                           MPMediaItemPropertyAlbumPersistentID)),
              ElementsAre("Aardvark", "Alpha", "Bravo"));
}

TEST_F(MediaLibraryClasses, ATextThatIsNotAWholeNumberIdentifiesNothing) {
  const auto number =
      objc::cast<NSNumber>(item("Alpha").valueForProperty(MPMediaItemPropertyAlbumPersistentID));
  for (const char* more : {" ", ".0", "x"}) {
    const NSString spelt =
        number.stringValue().stringByAppendingString(NSString::stringWithUTF8String(more));
    EXPECT_EQ(found(spelt, MPMediaItemPropertyAlbumPersistentID).count(), 0u) << more;
  }
  EXPECT_EQ(found(""_ns, MPMediaItemPropertyAlbumPersistentID).count(), 0u);
}

TEST_F(MediaLibraryClasses, HalfALetterIsFoundNowhere) {
  const NSString half = "🎵"_ns.substringToIndex(1);
  for (const NSString property : {MPMediaItemPropertyTitle, MPMediaItemPropertyAlbumPersistentID})
    EXPECT_EQ(found(half, property).count(), 0u);
}

TEST_F(MediaLibraryClasses, AnAlbumOrASongHasToSatisfyTheOtherPredicatesToo) {
  const auto both = [this](NSString property, const char* title) {
    const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
    query.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(
        item("Bravo").valueForProperty(property), property));
    query.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(
        NSString::stringWithUTF8String(title), MPMediaItemPropertyTitle));
    return titles(query.items());
  };
  EXPECT_THAT(both(MPMediaItemPropertyAlbumPersistentID, "Alpha"), ElementsAre("Alpha"));
  EXPECT_THAT(both(MPMediaItemPropertyAlbumPersistentID, "Charlie"), ElementsAre());
  EXPECT_THAT(both(MPMediaItemPropertyPersistentID, "Bravo"), ElementsAre("Bravo"));
  EXPECT_THAT(both(MPMediaItemPropertyPersistentID, "Alpha"), ElementsAre());
}

TEST_F(MediaLibraryClasses, TextsAndNumbersOfAnItemAreCreatedOnce) {
  const MPMediaItem alpha = item("Alpha");
  for (const NSString property :
       {MPMediaItemPropertyTitle, MPMediaItemPropertyArtist, MPMediaItemPropertyAlbumTitle,
        MPMediaItemPropertyPersistentID, MPMediaItemPropertyAlbumPersistentID,
        MPMediaItemPropertyMediaType, MPMediaItemPropertyIsCloudItem}) {
    EXPECT_EQ(alpha.valueForProperty(property), alpha.valueForProperty(property));
  }
  EXPECT_EQ(alpha.valueForProperty(MPMediaItemPropertyAlbumTitle),
            item("Bravo").valueForProperty(MPMediaItemPropertyAlbumTitle));
}

TEST_F(MediaLibraryClasses, SongsWithEqualTitlesShareTheText) {
  add_song("e.flac", "Alpha");
  start();
  const NSArray songs = query_->items();
  EXPECT_EQ(
      objc::cast<MPMediaItem>(songs.objectAtIndex(0)).valueForProperty(MPMediaItemPropertyTitle),
      objc::cast<MPMediaItem>(songs.objectAtIndex(1)).valueForProperty(MPMediaItemPropertyTitle));
}

TEST_F(MediaLibraryClasses, ASongHasToSatisfyEveryPredicate) {
  const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
  query.addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue("Xenia"_ns, MPMediaItemPropertyArtist));
  EXPECT_THAT(titles(query.items()), ElementsAre("Alpha", "Bravo"));
  query.addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue("Bravo"_ns, MPMediaItemPropertyTitle));
  EXPECT_THAT(titles(query.items()), ElementsAre("Bravo"));
}

TEST_F(MediaLibraryClasses, NothingIsFoundByAPropertyThatDoesNotIdentifySongs) {
  EXPECT_EQ(found("8"_ns, MPMediaItemPropertyPlaybackDuration).count(), 0u);
}

TEST_F(MediaLibraryClasses, TheArtworkKeepsItsAspectRatioAndFitsTheRequestedSize) {
  const auto artwork =
      objc::cast<MPMediaItemArtwork>(item("Alpha").valueForProperty(MPMediaItemPropertyArtwork));
  const UIImage picture = artwork.imageWithSize({16, 16});
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture.scale(), 2);
  EXPECT_EQ(picture.size().width, 16);
  EXPECT_EQ(picture.size().height, 8);
  const auto data = CGDataProviderCopyData(CGImageGetDataProvider(picture.CGImage()));
  EXPECT_GT(CFDataGetBytePtr(data)[0], 240);
  EXPECT_LT(CFDataGetBytePtr(data)[1], 15);
  CFRelease(data);
}

TEST_F(MediaLibraryClasses, TheSameCoverAtTheSameSizeIsOneObject) {
  const auto image = [this](CGSize size) {
    const auto artwork =
        objc::cast<MPMediaItemArtwork>(item("Alpha").valueForProperty(MPMediaItemPropertyArtwork));
    return artwork.imageWithSize(size);
  };
  EXPECT_EQ(image({16, 16}), image({16, 16}));
  EXPECT_NE(image({16, 16}), image({8, 8}));
}

TEST_F(MediaLibraryClasses, AnEmptySizeHasNoImage) {
  const auto artwork =
      objc::cast<MPMediaItemArtwork>(item("Alpha").valueForProperty(MPMediaItemPropertyArtwork));
  EXPECT_FALSE(artwork.imageWithSize({0, 0}));
  EXPECT_FALSE(artwork.imageWithSize({-1, -1}));
}

TEST_F(MediaLibraryClasses, AQueryReturnsTheSameArrayUntilTheLibraryChanges) {
  const NSArray before = query_->items();
  EXPECT_EQ(query_->items(), before);
  add_song("e.flac", "Echo");
  start();
  EXPECT_THAT(titles(query_->items()), ElementsAre("Alpha", "Bravo", "Charlie", "Delta", "Echo"));
}

TEST_F(MediaLibraryClasses, AnItemOutlivesItsLibraryAndEqualsItsSuccessor) {
  const auto bravo = objc::Ref<MPMediaItem>::retain(item("Bravo"));
  add_song("e.flac", "Echo");
  start();
  EXPECT_EQ(text(bravo->valueForProperty(MPMediaItemPropertyArtist)), "Xenia");
  EXPECT_TRUE(bravo->isEqual(item("Bravo")));
  EXPECT_TRUE(query_->items().containsObject(bravo.get()));
}

TEST_F(MediaLibraryClasses, TheArrayOfItemsCanBeCopiedAndChanged) {
  const NSMutableArray songs = NSMutableArray::arrayWithArray(query_->items());
  songs.removeObjectAtIndex(0);
  EXPECT_THAT(titles(songs), ElementsAre("Bravo", "Charlie", "Delta"));
  EXPECT_EQ(query_->items().count(), 4u);
}

TEST_F(MediaLibraryClasses, WithoutTheServiceTheLibraryIsEmpty) {
  host::media_player::MediaService::stop();
  EXPECT_EQ(query_->items().count(), 0u);
}

TEST_F(MediaLibraryClasses, AnItemIsCreatedOnFirstUse) {
  std::vector<host::media::SongRecord> songs(3);
  for (std::size_t i = 0; i < songs.size(); ++i) {
    songs[i].id = i + 1;
    songs[i].tags.title = std::string(1, static_cast<char>('a' + i));
  }
  host::media_player::ItemStore store{host::media::Library::build(songs)};
  EXPECT_EQ(store.made_count(), 0u);
  const MPMediaItem item = store.item(1);
  EXPECT_EQ(text(item.valueForProperty(MPMediaItemPropertyTitle)), "b");
  EXPECT_EQ(store.item(1), item);
  EXPECT_EQ(store.made_count(), 1u);
  EXPECT_FALSE(store.item_with_id(99));
}

}  // namespace
