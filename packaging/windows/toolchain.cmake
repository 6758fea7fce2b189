# Builds for 64-bit Windows with Debian's cross-compiler and runs what was built with Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The programs need nothing but Windows itself.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Libraries are those of Windows, programs those of this machine. OVL_QT is the folder of Qt for Windows.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES OVL_QT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${OVL_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_CROSSCOMPILING_EMULATOR env WINEPREFIX=${CMAKE_BINARY_DIR}/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= wine)
