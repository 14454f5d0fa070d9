#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/credits/author.h"

// The ways to an author. Composers are shown over the card and tell the cell how they ended.

namespace sonavue {

void write_mail(const Author& author, PSTableCell cell, UIViewController card);
/// Nothing on a device that cannot send texts.
void write_message(const Author& author, PSTableCell cell, UIViewController card);
/// In the first application that knows such people, or in the browser.
void follow(const Author& author);
/// In the package manager, where there is one.
void show_package(const Package& package);

}  // namespace sonavue
