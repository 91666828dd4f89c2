# Toolchain: Windows with 64 bits, by Debian's mingw-w64 (threads: posix, for std::thread). The libraries
# are those that ./windows has built and linked into build/windows-libraries.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

# Where the links lead: the packages find each other by their real places.
file(GLOB links ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries/*)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
foreach(link ${links})
  file(REAL_PATH ${link} library)
  list(PREPEND CMAKE_FIND_ROOT_PATH ${library})
endforeach()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# moc and its like run here: those of the system's Qt, of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
