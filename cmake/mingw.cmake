# Builds for Windows (64 bits) on Linux with MinGW-w64, and runs the tests under Wine.
# PLEXORAN_WINDOWS is the folder into which the libraries for Windows were installed; see
# CONTRIBUTING.md.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# GCC 12 sees texts overlap that do not, inside its own std::string.
set(CMAKE_CXX_FLAGS_INIT -Wno-restrict)

set(PLEXORAN_WINDOWS "" CACHE PATH "Where the libraries for Windows are installed")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PLEXORAN_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${PLEXORAN_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${PLEXORAN_WINDOWS}/lib/pkgconfig")

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
