# One library per folder. A layer's headers are found only by the layers that say so: each gets
# an include path of its own, so that an include that goes up does not compile.

add_library(survey_options INTERFACE)
target_compile_options(survey_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)
# At -O3 gcc 12 takes a literal + std::string for an overlapping copy; gcc 13 does not.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(survey_options INTERFACE -Wno-restrict)
endif()
if(SURVEY_SANITIZE)
  target_compile_options(survey_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(survey_options INTERFACE -fsanitize=address,undefined)
endif()

# What is handed out reads files from elsewhere: a fault in it shall end the program and do no more.
if(NOT SURVEY_SANITIZE)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  target_compile_options(survey_options INTERFACE -fstack-protector-strong
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  if(WIN32)
    target_link_libraries(survey_options INTERFACE -l:libssp.a)  # the guard on the stack
  else()
    target_link_options(survey_options INTERFACE -Wl,-z,relro -Wl,-z,now)
  endif()
endif()

function(survey_layer name)
  cmake_parse_arguments(LAYER "QT" "" "SEES;USES" ${ARGN})
  set(include_path ${CMAKE_BINARY_DIR}/layers/${name})
  file(MAKE_DIRECTORY ${include_path})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${name} ${include_path}/${name} SYMBOLIC)

  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${name}/*.cpp)
  if(NOT sources)  # headers alone
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${include_path})
    target_link_libraries(${name} INTERFACE ${LAYER_SEES} ${LAYER_USES})
    return()
  endif()
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${name}/*.h)
  add_library(${name} STATIC ${sources} ${headers})
  target_include_directories(${name} PUBLIC ${include_path})
  target_link_libraries(${name} PUBLIC ${LAYER_SEES} ${LAYER_USES} PRIVATE survey_options)
  if(LAYER_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS)
  endif()
endfunction()
