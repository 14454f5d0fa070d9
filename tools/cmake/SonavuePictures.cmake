# Pictures are kept as SVG and rendered by the build, all in one process (tools/draw_pictures).

# sonavue_picture(outputs SOURCE play.svg OUTPUT dir/Play@2x.png SIZE 100 100) renders one file and
# appends its path to the list `outputs`. SIZE is in pixels.
function(sonavue_picture list)
  cmake_parse_arguments(ARG "" "SOURCE;OUTPUT" "SIZE" ${ARGN})
  cmake_path(ABSOLUTE_PATH ARG_SOURCE BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
  cmake_path(GET ARG_OUTPUT PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  list(GET ARG_SIZE 0 width)
  list(GET ARG_SIZE 1 height)
  set_property(GLOBAL APPEND_STRING PROPERTY SONAVUE_PICTURE_LINES
               "${ARG_SOURCE}\t${width}\t${height}\t${ARG_OUTPUT}\n")
  set_property(GLOBAL APPEND PROPERTY SONAVUE_PICTURE_SOURCES ${ARG_SOURCE})
  set_property(GLOBAL APPEND PROPERTY SONAVUE_PICTURES ${ARG_OUTPUT})
  set(${list} ${${list}} "${ARG_OUTPUT}" PARENT_SCOPE)
endfunction()

# sonavue_scaled_picture(outputs SOURCE play.svg FOLDER dir SIZE 50 50) renders Play.png, Play@2x.png
# and Play@3x.png; SIZE is in points.
function(sonavue_scaled_picture list)
  cmake_parse_arguments(ARG "" "SOURCE;FOLDER" "SIZE" ${ARGN})
  cmake_path(GET ARG_SOURCE STEM name)
  list(GET ARG_SIZE 0 width)
  list(GET ARG_SIZE 1 height)
  foreach(scale RANGE 1 3)
    set(suffix "@${scale}x")
    if(scale EQUAL 1)
      set(suffix "")
    endif()
    math(EXPR scaled_width "${width} * ${scale}")
    math(EXPR scaled_height "${height} * ${scale}")
    sonavue_picture(${list} SOURCE ${ARG_SOURCE} OUTPUT "${ARG_FOLDER}/${name}${suffix}.png"
                    SIZE ${scaled_width} ${scaled_height})
  endforeach()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# sonavue_masked_source(result SOURCE icons/music.svg MASK icon-mask.svg) makes, in the build folder,
# the same drawing clipped to the outline that the mask file holds, and sets `result` to its path.
function(sonavue_masked_source result)
  cmake_parse_arguments(ARG "" "SOURCE;MASK" "" ${ARGN})
  cmake_path(ABSOLUTE_PATH ARG_SOURCE BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
  cmake_path(ABSOLUTE_PATH ARG_MASK BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
  cmake_path(GET ARG_SOURCE FILENAME file_name)
  set(masked ${CMAKE_CURRENT_BINARY_DIR}/masked/${file_name})
  set(script ${CMAKE_SOURCE_DIR}/tools/cmake/MaskPicture.cmake)
  add_custom_command(
    OUTPUT ${masked}
    COMMAND ${CMAKE_COMMAND} -D SOURCE=${ARG_SOURCE} -D MASK=${ARG_MASK} -D OUTPUT=${masked}
            -P ${script}
    DEPENDS ${ARG_SOURCE} ${ARG_MASK} ${script}
    COMMENT "Masking ${file_name}" VERBATIM)
  set(${result} ${masked} PARENT_SCOPE)
endfunction()
