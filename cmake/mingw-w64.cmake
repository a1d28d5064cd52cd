# Cross-compiles for 64-bit Windows with Debian's GCC whose threads are those of the C++ library.
# Qt and the other libraries are in CMAKE_PREFIX_PATH: scripts/windows.sh builds and names them.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/wine.sh)

# What runs while building is this system's.
file(GLOB Qt5LinguistTools_DIR /usr/lib/*/cmake/Qt5LinguistTools)

# Programs run here; what is linked and included is for Windows.
string(REPLACE ":" ";" libraries "$ENV{CMAKE_PREFIX_PATH}")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH} ${libraries})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What is given away names no folder of the machine that it was built on.
foreach(folder IN LISTS CMAKE_FIND_ROOT_PATH ITEMS ${CMAKE_SOURCE_DIR})
    add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-fmacro-prefix-map=${folder}/=>)
endforeach()
