#pragma once

#include "settings/credits/author.h"

namespace sonavue {

inline constexpr Package kProduct = {"Sonavue", "SonavueSettingsIcon", "org.plumvane.sonavue2",
                                     "Sonavue"};

inline constexpr Package kDevelopersPackages[] = {
    {"Tidepool", "package_tidepool", "org.example.tidepool", "Tidepool"},
    {"Nightshelf", "package_nightshelf", "org.example.nightshelf", "Nightshelf"},
    {"Lanterns", "package_lanterns", "org.example.lanterns", "Lanterns"},
    kProduct,
};

inline constexpr Package kDesignersPackages[] = {
    {"Fernglyphs", "package_fernglyphs", "org.example.fernglyphs", "Fernglyphs"},
    {"Paperdock", "package_paperdock", "org.example.paperdock", "Paperdock"},
    kProduct,
};

inline constexpr Author kDeveloper = {
    "developerCell",     "Plumvane Code (@plumvane_code)",
    "Developer",         "developer",
    "code@example.org",  "code@example.org",
    "plumvane_code",     "followDeveloper",
    kDevelopersPackages, 4,
};

inline constexpr Author kDesigner = {
    "designerCell",     "Plumvane Draw (@plumvane_draw)",
    "Designer",         "designer",
    "draw@example.org", "draw@example.org",
    "plumvane_draw",    "followDesigner",
    kDesignersPackages, 3,
};

}  // namespace sonavue
