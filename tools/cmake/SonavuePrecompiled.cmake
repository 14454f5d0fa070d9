# Headers that are read again and again are read once and shared: of the standard library alone, so that include roots stay the
# walls that they are. They hide an include that is missing in a source, which is why only `dev` has them.

option(SONAVUE_PRECOMPILED "Share precompiled headers of the standard library" OFF)

# sonavue_headers(name <header>…) makes the precompiled headers `name` from a source without content.
function(sonavue_headers name)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Nothing but the headers that are precompiled with it.\n")
  add_library(${name} OBJECT ${source})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# sonavue_share_headers(name FOLDER…) has every library of the folders use them. Programs are compiled in another way (-fPIE),
# which precompiled headers have to be, too.
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
