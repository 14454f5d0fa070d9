# Writes a C++ source that defines the bytes of FILE: `page.js` becomes `embedded::page_js`.
file(READ ${FILE} bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
get_filename_component(name ${FILE} NAME)
string(MAKE_C_IDENTIFIER ${name} name)
file(WRITE ${OUTPUT} "#include <string_view>
namespace embedded {
namespace {
constexpr char bytes_of_${name}[] = {${bytes}'\\0'};
}
extern const std::string_view ${name};
constinit const std::string_view ${name}(bytes_of_${name}, sizeof bytes_of_${name} - 1);
}  // namespace embedded
")
