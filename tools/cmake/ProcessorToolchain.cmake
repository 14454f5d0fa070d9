# The desktop's phone for an arm64 processor, run here by qemu with the libraries that it was built
# with; files that they read at run time come from this machine.
include(${CMAKE_CURRENT_LIST_DIR}/Arm64Toolchain.cmake)
foreach(kind IN ITEMS EXE SHARED MODULE)
  string(APPEND CMAKE_${kind}_LINKER_FLAGS_INIT
         " -Wl,--no-as-needed -Wl,--dynamic-linker=${sysroot}/lib/ld-linux-aarch64.so.1")
endforeach()

# Character conversion tables are loaded as code, too.
set(CMAKE_CROSSCOMPILING_EMULATOR
    qemu-aarch64-static -E LD_LIBRARY_PATH=${search_path} -E GCONV_PATH=${libraries}/gconv)
