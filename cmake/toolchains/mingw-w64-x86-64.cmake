# Cross-compiles for 64-bit Windows with Debian's MinGW-w64 (posix threads) against the libraries in
# WINDOWS_DEPS: a prefix with Qt 5, libcurl and GoogleTest (docs/windows.md).
if(NOT WINDOWS_DEPS)
    set(WINDOWS_DEPS "$ENV{WINDOWS_DEPS}")
endif()
if(NOT IS_DIRECTORY "${WINDOWS_DEPS}/lib/cmake/Qt5")
    message(FATAL_ERROR "No Windows libraries in WINDOWS_DEPS (\"${WINDOWS_DEPS}\"): give their "
        "folder with -DWINDOWS_DEPS=<prefix>; tools/windows/build-deps <prefix> builds them.")
endif()
set(WINDOWS_DEPS "${WINDOWS_DEPS}" CACHE PATH "Prefix of the libraries built for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WINDOWS_DEPS)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH "${WINDOWS_DEPS}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Boost is headers only, so the system's serve: through a folder that holds nothing else of the
# system's headers.
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/boost")
file(CREATE_LINK /usr/include/boost "${CMAKE_BINARY_DIR}/boost/boost" SYMBOLIC)
set(Boost_NO_BOOST_CMAKE ON)
set(Boost_INCLUDE_DIR "${CMAKE_BINARY_DIR}/boost")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../../tools/windows/wine-run")
