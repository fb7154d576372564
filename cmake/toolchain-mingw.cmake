# Compiles on Debian for Windows 10 and 11, 64 bit, with the package g++-mingw-w64-x86-64-posix.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10.0)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Libraries of that system alone, Qt's from where tools/build_qt_windows put them; programs that run during the build, of
# this one.
set(COLTRE_QT_FOR_WINDOWS "" CACHE PATH "Directory that tools/build_qt_windows prints")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES COLTRE_QT_FOR_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${COLTRE_QT_FOR_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Packages of Debian that are headers or sources, and serve every system.
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/windows)

# Runs the tests.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/under_wine)
