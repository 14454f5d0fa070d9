#include "host/launcher/installation.h"

namespace host::launcher {

Installation find_installation() {
  std::error_code error;
  // <build>/bin/sonavue, with SpringBoard and the device's tools beside it.
  const auto programs = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  const auto build = programs.parent_path();
  return {programs / "SpringBoard",
          programs / "device",
          build / "host-pictures" / "covers",
          build / "host-pictures" / "icon.png",
          {build / "staging", build / "applications"},
          build / "first-files"};
}

}  // namespace host::launcher
