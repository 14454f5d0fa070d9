#include "host/application/program/program.h"
#include "host/applications/music/music_application.h"

int main(int count, char** arguments) {
  return host::application::run_program(count, arguments, host::music::kProgram);
}
