# Brings Qt's plugins and all libraries into the portable folder, with their copyright notices.
# Set by the installation: `program`, the executable, `qmake`, which knows where the plugins lie, and
# `fetched_engine`, the folder of the newer engine, where tools/newer_engine.sh has fetched one.
#
# What stays the system's are the C and C++ run-time libraries: they belong to its kernel and its
# compiler, and newer ones serve older programs.

set(plugins
  platforms/libqxcb.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  printsupport/libcupsprintersupport.so)
set(of_the_system "^ld-linux" "^lib(c|m|dl|pthread|resolv|rt|util)[.]so" "^lib(stdc[+][+]|gcc_s)[.]so")

execute_process(COMMAND ${qmake} -query QT_INSTALL_PLUGINS OUTPUT_VARIABLE plugin_folder
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(plugin_files ${plugins})
list(TRANSFORM plugin_files PREPEND ${plugin_folder}/)
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${program} MODULES ${plugin_files}
     PRE_EXCLUDE_REGEXES ${of_the_system} RESOLVED_DEPENDENCIES_VAR libraries)

# A file that is made for it crashes the engine of generation 3, and there are no fixes for that one.
if(libraries MATCHES "/libsqlcipher[.]so[.]0")
  message(FATAL_ERROR "What is handed out with its libraries brings the newer engine: "
                      "run tools/newer_engine.sh, and build anew.")
endif()

set(destination ${CMAKE_INSTALL_PREFIX}/lib)
file(INSTALL ${libraries} DESTINATION ${destination} TYPE SHARED_LIBRARY FOLLOW_SYMLINK_CHAIN)
foreach(plugin ${plugins})
  get_filename_component(kind ${plugin} DIRECTORY)
  file(INSTALL ${plugin_folder}/${plugin} DESTINATION ${destination}/plugins/${kind} TYPE MODULE)
endforeach()

# The packages that they are of, with their versions.
set(names ${libraries} ${plugin_files})
list(FILTER names EXCLUDE REGEX "/build/engine/")
list(TRANSFORM names REPLACE "^.*/" "*/")
execute_process(COMMAND dpkg-query --search ${names} OUTPUT_VARIABLE owners
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" packages "${owners}")
list(TRANSFORM packages REPLACE "[:,].*" "")
list(REMOVE_DUPLICATES packages)
execute_process(COMMAND dpkg-query --show ${packages} OUTPUT_VARIABLE versions
                COMMAND_ERROR_IS_FATAL ANY)
if(libraries MATCHES "/build/engine/")
  list(APPEND packages libsqlcipher1)
  set(root_of_libsqlcipher1 ${fetched_engine})
  file(READ ${fetched_engine}/version version)
  string(APPEND versions "libsqlcipher1\t${version}")
endif()
file(WRITE ${destination}/versions.txt "${versions}")

# A package's notice names the licences whose text all packages share.
foreach(package ${packages})
  set(notice ${root_of_${package}}/usr/share/doc/${package}/copyright)
  file(INSTALL ${notice} DESTINATION ${destination}/licences RENAME ${package})
  file(STRINGS ${notice} lines REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z]+(-[0-9.]*[0-9])?" texts "${lines}")
  list(APPEND licences ${texts})
endforeach()
list(REMOVE_DUPLICATES licences)
foreach(licence ${licences})
  if(EXISTS ${licence})
    file(INSTALL ${licence} DESTINATION ${destination}/licences/common FOLLOW_SYMLINK_CHAIN)
  endif()
endforeach()
