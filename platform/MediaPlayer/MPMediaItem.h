#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIImage.h"

// Names of an item's properties, each with the type of its value.
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
  /// Returns nil if the item does not have the property.
  objc::Object valueForProperty(NSString property) const {
    return call<"valueForProperty:", objc::Object>(property);
  }
};

struct MPMediaItemArtwork : objc::Bound<MPMediaItemArtwork, "MPMediaItemArtwork", NSObject> {
  /// The picture, scaled to `size` points; nil if it cannot be decoded.
  UIImage imageWithSize(CGSize size) const { return call<"imageWithSize:", UIImage>(size); }
};
