#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSListController.h"

/// The page of those who made it. A class of the extension's own.
struct creatorsController : objc::Own<creatorsController, "creatorsController", PSListController> {
};

namespace sonavue {

void make_credits_page();

}  // namespace sonavue
