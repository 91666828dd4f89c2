# On Windows a program finds its DLLs beside itself: all programs are built into one folder, with the
# libraries that they need. `windows_runtime` are those of the users' program, `windows_plugins` Qt's
# plugins by their folder.

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_SOURCE_DIR}/packaging/windows/under_wine.sh)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

set(qt ${CMAKE_SOURCE_DIR}/build/windows-libraries/qt)
foreach(module Core Gui Widgets PrintSupport)
  list(APPEND windows_runtime ${qt}/bin/Qt6${module}.dll)
endforeach()
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND windows_runtime ${file})
endforeach()
set(windows_plugins ${qt}/plugins/platforms/qwindows.dll)


# The tests of the desktop work unseen too.
file(COPY ${windows_runtime} ${qt}/bin/Qt6Test.dll ${CMAKE_SOURCE_DIR}/packaging/windows/qt.conf
     DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
foreach(plugin ${windows_plugins} ${qt}/plugins/platforms/qoffscreen.dll)
  string(REGEX REPLACE ".*/([^/]+)/[^/]+" "\\1" folder ${plugin})
  file(COPY ${plugin} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder})
endforeach()
