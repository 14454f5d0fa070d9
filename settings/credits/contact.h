#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UIViewController.h"
#include "settings/credits/author.h"

// Ways to contact an author. Composers are shown over the card, and the cell is their delegate.

namespace sonavue {

void write_mail(const Author& author, PSTableCell cell, UIViewController card);
/// A no-op on a device that cannot send text messages.
void write_message(const Author& author, PSTableCell cell, UIViewController card);
/// Opens the author's profile in the first installed application that supports it, or else in the
/// browser.
void follow(const Author& author);
/// Opens the package in the package manager. A no-op if there is none.
void show_package(const Package& package);

}  // namespace sonavue
