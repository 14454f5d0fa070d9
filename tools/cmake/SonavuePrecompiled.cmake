# Shared precompiled headers. They contain only standard headers, so that include roots still separate the modules. They hide
# missing includes, so only `dev` uses them.

option(SONAVUE_PRECOMPILED "Share precompiled headers of the standard library" OFF)

# sonavue_headers(name <header>…) creates the precompiled headers `name` from an empty source.
function(sonavue_headers name)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Nothing but the headers that are precompiled with it.\n")
  add_library(${name} OBJECT ${source})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# sonavue_share_headers(name FOLDER…) makes every library of the folders use them. Programs do not: they are compiled with -fPIE,
# and precompiled headers must match that.
function(sonavue_share_headers name)
  foreach(folder IN LISTS ARGN)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
      get_target_property(type ${target} TYPE)
      if(type MATCHES "^(STATIC|OBJECT)_LIBRARY$" AND NOT target STREQUAL name)
        target_precompile_headers(${target} REUSE_FROM ${name})
      endif()
    endforeach()
    get_property(inner DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    if(inner)
      sonavue_share_headers(${name} ${inner})
    endif()
  endforeach()
endfunction()
