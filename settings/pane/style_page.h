#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSListController.h"

/// The page with all settings, and the wizard that leads through the most important ones. One of
/// the extension's own classes.
struct styleController : objc::Own<styleController, "styleController", PSListController> {
  void showFirstPage() const { call<"showFirstPage">(); }
};

namespace sonavue {

void make_style_page();

}  // namespace sonavue
