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
    "Plum (@plumcode)", "Developer",         "developer",
    "plum@example.org", "plum@example.org",  "plumcode",
    "followDeveloper",  kDevelopersPackages, 4,
};

inline constexpr Author kDesigner = {
    "Vane (@vanedraws)", "Designer",         "designer",
    "vane@example.org",  "vane@example.org", "vanedraws",
    "followDesigner",    kDesignersPackages, 3,
};

}  // namespace sonavue
