# Phones on which another extension has already registered classes under our names.

# Our classes, from the list of the package's checker.
set(own_names ${CMAKE_SOURCE_DIR}/device/check/own_names.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${own_names})
file(STRINGS ${own_names} lines)
set(own_classes)
foreach(line IN LISTS lines)
  if(line MATCHES "^#")
    string(COMPARE EQUAL "${line}" "# Our own classes." is_ours)
  elseif(is_ours)
    list(APPEND own_classes ${line})
  endif()
endforeach()

# Excluded: Settings opens this class by name, and without it no page could be tested.
set(first_page SonavueSettingsController)
list(REMOVE_ITEM own_classes ${first_page})

# The settings use none of these.
set(panel_classes M13ProgressView M13ProgressViewRing MusicsAlbum Musicz SVActivatorListener SVHits Scroller)

# sonavue_taken_names(TEST SONAVUE SCENARIO NAME…) plays a scenario on a phone whose names are taken.
function(sonavue_taken_names test sonavue scenario)
  string(REPLACE ";" " " names "${ARGN}")
  add_test(NAME ${test} COMMAND ${CMAKE_SOURCE_DIR}/tests/scenarios/play ${sonavue}
                                ${CMAKE_SOURCE_DIR}/tests/scenarios/taken-names/${scenario}.scn
                                ${CMAKE_BINARY_DIR}/tests/scenarios/${test})
  set_tests_properties(${test} PROPERTIES ENVIRONMENT "NAMESAKES=${names}" TIMEOUT 300)
endfunction()
