# `sonavue_embed(SOURCES page.js)` makes a source of the file that defines its bytes as
# `embedded::page_js`, and adds it to the variable SOURCES. It is made while configuring, because the
# checks read sources without building.
function(sonavue_embed variable file)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} bytes HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
  string(MAKE_C_IDENTIFIER ${file} name)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${file}.cpp)
  file(CONFIGURE OUTPUT ${source} @ONLY CONTENT "#include <string_view>
namespace embedded {
namespace {
constexpr char bytes_of_@name@[] = {@bytes@'\\0'};
}
extern const std::string_view @name@;
constinit const std::string_view @name@(bytes_of_@name@, sizeof bytes_of_@name@ - 1);
}  // namespace embedded
")
  # Its user declares it once more.
  set_source_files_properties(${source} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  set(${variable} ${${variable}} ${source} PARENT_SCOPE)
endfunction()
