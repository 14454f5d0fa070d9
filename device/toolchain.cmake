# Debian's clang and lld compile and link for the phone, without the vendor's development kit: the C++
# headers are the freestanding ones of the desktop's compiler, and stubs/ describes the libraries to
# link against.

# Besides the phone's processor, the desktop's is supported: tests run the code for it.
set(SONAVUE_PHONE_PROCESSOR arm64 CACHE STRING "arm64, or x86_64 for a simulated phone")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SONAVUE_PHONE_PROCESSOR)
set(target ${SONAVUE_PHONE_PROCESSOR}-apple-ios8.0)
if(NOT SONAVUE_PHONE_PROCESSOR STREQUAL arm64)
  string(APPEND target -simulator)
endif()

set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR ${SONAVUE_PHONE_PROCESSOR})
set(SONAVUE_PHONE ON)

set(CMAKE_C_COMPILER clang-16)
set(CMAKE_CXX_COMPILER clang++-16)
set(CMAKE_C_COMPILER_TARGET ${target})
set(CMAKE_CXX_COMPILER_TARGET ${target})
# Programs cannot be linked before the stubs are in place.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

file(GLOB standard_headers /usr/include/c++/12 /usr/include/x86_64-linux-gnu/c++/12
     /usr/include/aarch64-linux-gnu/c++/12)
set(CMAKE_CXX_FLAGS_INIT "-ffreestanding -nostdlibinc -isystem ${CMAKE_CURRENT_LIST_DIR}/include")
foreach(folder IN LISTS standard_headers)
  string(APPEND CMAKE_CXX_FLAGS_INIT " -isystem ${folder}")
endforeach()

# The desktop reads only the long form of the unwind tables. The linker omits it for code that also
# has the phone's compact form.
if(NOT SONAVUE_PHONE_PROCESSOR STREQUAL arm64)
  find_program(SONAVUE_OBJCOPY llvm-objcopy-16 REQUIRED)
  set(CMAKE_CXX_COMPILE_OBJECT
      "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -o <OBJECT> -c <SOURCE>"
      "${SONAVUE_OBJCOPY} --remove-section __LD,__compact_unwind <OBJECT>")
endif()
