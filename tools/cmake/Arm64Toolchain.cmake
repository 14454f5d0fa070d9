# The desktop's phone for an arm64 processor. Its libraries come from tools/sysroot.
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

# Library folders that the packages' install scripts would have registered.
set(folders ${libraries} ${sysroot}/lib/aarch64-linux-gnu ${sysroot}/usr/lib ${libraries}/blas
            ${libraries}/lapack ${libraries}/pulseaudio)
list(JOIN folders : search_path)
set(link "-L${sysroot}/usr/lib/gcc/aarch64-linux-gnu/12 -Wl,-rpath-link,${search_path}")
foreach(kind IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT ${link})
endforeach()
