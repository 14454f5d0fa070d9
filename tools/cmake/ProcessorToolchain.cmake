# The desktop's phone for an arm64 processor, run by qemu. Its libraries come from tools/sysroot; files
# that they read at run time come from this machine.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
cmake_path(SET sysroot NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/sysroot)
set(libraries ${sysroot}/usr/lib/aarch64-linux-gnu)
set(CMAKE_SYSROOT ${sysroot})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${sysroot})
set(ENV{PKG_CONFIG_LIBDIR} ${libraries}/pkgconfig:${sysroot}/usr/share/pkgconfig)

# Pictures and numbers must be the same as on the desktop and on the phone: char is signed, and
# multiplications are not fused with additions.
set(CMAKE_C_FLAGS_INIT "-fsigned-char -ffp-contract=off")
set(CMAKE_CXX_FLAGS_INIT ${CMAKE_C_FLAGS_INIT})

# Library folders that the packages' install scripts would have registered.
set(folders ${libraries} ${sysroot}/lib/aarch64-linux-gnu ${sysroot}/usr/lib ${libraries}/blas
            ${libraries}/lapack ${libraries}/pulseaudio)
list(JOIN folders : search_path)
set(link "-L${sysroot}/usr/lib/gcc/aarch64-linux-gnu/12 -Wl,--no-as-needed")
string(APPEND link " -Wl,-rpath-link,${search_path}")
string(APPEND link " -Wl,--dynamic-linker=${sysroot}/lib/ld-linux-aarch64.so.1")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${link})
set(CMAKE_SHARED_LINKER_FLAGS_INIT ${link})
set(CMAKE_MODULE_LINKER_FLAGS_INIT ${link})

# Character conversion tables are loaded as code, too.
set(CMAKE_CROSSCOMPILING_EMULATOR
    qemu-aarch64-static -E LD_LIBRARY_PATH=${search_path} -E GCONV_PATH=${libraries}/gconv)
