#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIImage.h"

// Names of an item's properties; values as noted.
extern "C" {
extern NSString MPMediaItemPropertyPersistentID;       // NSNumber, 64 bits
extern NSString MPMediaItemPropertyAlbumPersistentID;  // NSNumber, 64 bits
extern NSString MPMediaItemPropertyMediaType;          // NSNumber; 1 is music
extern NSString MPMediaItemPropertyTitle;              // NSString
extern NSString MPMediaItemPropertyAlbumTitle;         // NSString
extern NSString MPMediaItemPropertyArtist;             // NSString
extern NSString MPMediaItemPropertyPlaybackDuration;   // NSNumber, seconds
extern NSString MPMediaItemPropertyArtwork;            // MPMediaItemArtwork
extern NSString MPMediaItemPropertyIsCloudItem;        // NSNumber, boolean
}

struct MPMediaItem : objc::Bound<MPMediaItem, "MPMediaItem", NSObject> {
  /// Nil for a property that the item does not have.
  objc::Object valueForProperty(NSString property) const {
    return call<"valueForProperty:", objc::Object>(property);
  }
};

struct MPMediaItemArtwork : objc::Bound<MPMediaItemArtwork, "MPMediaItemArtwork", NSObject> {
  /// The picture scaled to `size` points; nil when it cannot be decoded.
  UIImage imageWithSize(CGSize size) const { return call<"imageWithSize:", UIImage>(size); }
};
