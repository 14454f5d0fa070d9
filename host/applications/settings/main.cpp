#include "host/applications/settings/settings_application.h"

int main(int count, char** arguments) {
  return host::application::run_program(count, arguments, host::settings::kProgram);
}
