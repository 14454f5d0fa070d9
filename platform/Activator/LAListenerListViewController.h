#pragma once

#include "platform/UIKit/UIViewController.h"

/// The page that lists every registered listener; a tap opens the listener's own page.
struct LAListenerListViewController
    : objc::Bound<LAListenerListViewController, "LAListenerListViewController", UIViewController> {
};
