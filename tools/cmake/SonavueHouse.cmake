# The rules of the build: one language level, warnings as errors, and include roots that let a target
# see only the modules that it links.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_FLAGS_DEBUG "-Og -g1")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

option(SONAVUE_CHECKS "Compare every message with the encoding of the method that answers it" ON)
option(SONAVUE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(SONAVUE_FUZZ "Build fuzzers that generate inputs; needs Clang" OFF)

option(SONAVUE_LLD "Link with lld" OFF)

# GCC searches for `ld.lld`; Debian installs it only with a version in its name.
if(SONAVUE_LLD)
  find_program(SONAVUE_LLD_PROGRAM ld.lld-16 REQUIRED)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/linker)
  file(CREATE_LINK ${SONAVUE_LLD_PROGRAM} ${CMAKE_BINARY_DIR}/linker/ld.lld SYMBOLIC)
  add_link_options(-fuse-ld=lld -B${CMAKE_BINARY_DIR}/linker)
endif()

find_program(SONAVUE_CCACHE ccache)
if(SONAVUE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${SONAVUE_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror -fvisibility=hidden
                    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fpch-preprocess>
                    # The platform's C functions return its own structures; that they are C++ types
                    # here is harmless.
                    $<$<CXX_COMPILER_ID:Clang>:-Wno-return-type-c-linkage>
                    # Clang reads every source, for the phone or for tools/check.
                    $<$<CXX_COMPILER_ID:Clang>:-Wconversion>)
if(CMAKE_UNITY_BUILD)
  # In a batch these warn about code that is correct file by file; the other presets enable them.
  add_compile_options(-Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
# Pictures and numbers are the same on every desktop and on the phone: char is signed, and
# multiplications are not fused with additions. Compilers for x86-64 need not be told.
if(NOT SONAVUE_PHONE AND NOT CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
  add_compile_options(-fsigned-char -ffp-contract=off)
endif()
if(SONAVUE_PHONE)
  # Exceptions of the system pass through the library, which has no handlers.
  add_compile_options(-funwind-tables)
else()
  # Some libraries require it, and sources that share precompiled headers must agree on it.
  add_compile_options(-pthread)
endif()
if(SONAVUE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(SONAVUE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# `sonavue_module(objc)` gives the folder objc/ its own include root, so that a target sees exactly
# the modules that it links: `#include "objc/send.h"` fails in a target that does not link objc.
# `sonavue_module(host/media)` does the same for an area inside a folder, as `host_media_root`: the
# root contains that area and nothing else of host/.
# `sonavue_module(tweak FILES Sonavue2.h)` adds only these files, without the folders beside them.
function(sonavue_module folder)
  cmake_parse_arguments(ARG "" "" "FILES" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  # The same for every build folder, so that the compiler cache serves all of them.
  set(root ${CMAKE_SOURCE_DIR}/build/include-roots/${name})
  set(shown ${folder})
  if(ARG_FILES)
    list(TRANSFORM ARG_FILES PREPEND ${folder}/ OUTPUT_VARIABLE shown)
    if(IS_SYMLINK ${root}/${folder})
      file(REMOVE ${root}/${folder})
    endif()
  endif()
  foreach(path IN LISTS shown)
    cmake_path(GET path PARENT_PATH above)
    file(MAKE_DIRECTORY ${root}/${above})
    if(NOT EXISTS ${root}/${path})
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${path} ${root}/${path} SYMBOLIC)
    endif()
  endforeach()
  add_library(${name}_root INTERFACE)
  target_include_directories(${name}_root INTERFACE ${root})
endfunction()

# sonavue_pixel_loops(FILE…) optimises sources that are loops over all pixels of a frame in every preset: unoptimised, they are
# most of the time of a test that shows something. Precompiled headers must match the optimisation, so these do without.
function(sonavue_pixel_loops)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O3 SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# Links all objects of static libraries, even those that the program does not reference: libraries
# that are loaded later bind to their symbols. An interface library stands for the libraries that it links.
function(sonavue_link_whole target)
  foreach(library IN LISTS ARGN)
    get_target_property(kind ${library} TYPE)
    if(kind STREQUAL INTERFACE_LIBRARY)
      get_target_property(parts ${library} INTERFACE_LINK_LIBRARIES)
      sonavue_link_whole(${target} ${parts})
      continue()
    endif()
    # One option per library: CMake removes repeated options.
    target_link_options(${target} PRIVATE
      LINKER:--whole-archive,$<TARGET_FILE:${library}>,--no-whole-archive)
    target_link_libraries(${target} PRIVATE ${library})
  endforeach()
endfunction()
