#pragma once

#include "platform/Preferences/PSListController.h"

/// The page of a list: all that it offers, a check mark at what is chosen.
struct PSListItemsController
    : objc::Bound<PSListItemsController, "PSListItemsController", PSListController> {};
