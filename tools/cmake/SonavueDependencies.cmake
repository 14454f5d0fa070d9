# Everything comes from Debian packages, which are listed in tools/packages.

find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(fmt REQUIRED)
find_package(spdlog REQUIRED)
find_package(CLI11 REQUIRED)
find_package(SQLite3 REQUIRED)
if(SONAVUE_PACKAGE)
  find_package(OpenSSL REQUIRED)
  find_package(LibArchive REQUIRED)
endif()
if(SONAVUE_TESTS)
  find_package(GTest REQUIRED)
  include(GoogleTest)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

pkg_check_modules(glib REQUIRED IMPORTED_TARGET glib-2.0)
pkg_check_modules(cairo REQUIRED IMPORTED_TARGET cairo)
pkg_check_modules(pangocairo REQUIRED IMPORTED_TARGET pangocairo pangoft2)
pkg_check_modules(gdk_pixbuf REQUIRED IMPORTED_TARGET gdk-pixbuf-2.0)
pkg_check_modules(sdl2 REQUIRED IMPORTED_TARGET sdl2)
pkg_check_modules(taglib REQUIRED IMPORTED_TARGET taglib)
pkg_check_modules(mpv REQUIRED IMPORTED_TARGET mpv)
pkg_check_modules(sndfile REQUIRED IMPORTED_TARGET sndfile)
pkg_check_modules(libsystemd REQUIRED IMPORTED_TARGET libsystemd)
pkg_check_modules(turbojpeg REQUIRED IMPORTED_TARGET libturbojpeg)
pkg_check_modules(png REQUIRED IMPORTED_TARGET libpng)
pkg_check_modules(libffi REQUIRED IMPORTED_TARGET libffi)

find_library(SONAVUE_LIBYUV yuv REQUIRED)
find_library(SONAVUE_WSLAY wslay REQUIRED)
find_library(SONAVUE_HTTP_PARSER http_parser REQUIRED)
find_library(SONAVUE_BLOCKS_RUNTIME BlocksRuntime REQUIRED)
find_library(SONAVUE_GNUSTEP_BASE gnustep-base REQUIRED)

# The code names no symbol of Foundation, so the linker must be told to keep the library. It contains
# its own `_Block_copy`, which does not support our stack blocks: the real one must be found first.
add_library(sonavue_foundation INTERFACE)
target_link_libraries(sonavue_foundation INTERFACE
  -Wl,--push-state,--no-as-needed ${SONAVUE_BLOCKS_RUNTIME} ${SONAVUE_GNUSTEP_BASE} objc
  -Wl,--pop-state)
