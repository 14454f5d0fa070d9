#pragma once

#include "platform/Preferences/PSListController.h"

/// The page of a list: it shows all choices, with a check mark at the current one.
struct PSListItemsController
    : objc::Bound<PSListItemsController, "PSListItemsController", PSListController> {};
