# Debian 12 -> Windows x86_64 (MinGW-w64 GCC 12, posix threads), tests under wine64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_SYSTEM_VERSION 10.0)
set(TRIPLE x86_64-w64-mingw32)
# "-posix" must be named: the plain names are alternatives links that point to "-win32",
# which has no std::thread/std::mutex in GCC 12.
set(CMAKE_C_COMPILER   /usr/bin/${TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER /usr/bin/${TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER  /usr/bin/${TRIPLE}-windres)
set(CMAKE_AR           /usr/bin/${TRIPLE}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB       /usr/bin/${TRIPLE}-gcc-ranlib-posix CACHE FILEPATH "")
set(CMAKE_FIND_ROOT_PATH /usr/${TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)   # no exe is linked or run to configure
set(CMAKE_RC_FLAGS_INIT "-c 65001 -O coff")          # .rc files are UTF-8
# Tests (add_test with a target name, gtest_discover_tests) are started through this.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tests/wine-run")
