#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSListController.h"

/// The page with the authors. One of the extension's own classes.
struct creatorsController : objc::Own<creatorsController, "creatorsController", PSListController> {
};

namespace sonavue {

void make_credits_page();

}  // namespace sonavue
