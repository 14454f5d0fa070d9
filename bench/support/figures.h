#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace bench {

/// Appends a figure to the file that SONAVUE_FIGURES names, for a program that makes a table of
/// several programs' figures: a name with dots and a number. Without the variable, does nothing.
inline void note_figure(const std::string& name, double value) {
  const char* path = std::getenv("SONAVUE_FIGURES");
  if (!path) return;
  std::FILE* file = std::fopen(path, "a");
  if (!file) return;
  std::fprintf(file, "%s %.9g\n", name.c_str(), value);
  std::fclose(file);
}

}  // namespace bench
