#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSListController.h"

/// The page of everything that can be chosen, and the wizard that leads through the most important
/// of it. A class of the extension's own.
struct styleController : objc::Own<styleController, "styleController", PSListController> {
  void showFirstPage() const { call<"showFirstPage">(); }
};

namespace sonavue {

void make_style_page();

}  // namespace sonavue
