# The drawings of desktop/pictures at the sizes in which they are shown, in build/pictures and as
# resources of `target` under :/pictures. Qt's own reader of SVG would be one more library to build
# for Windows and to bring along, for six pictures that change once in years.

find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(picture_folder ${CMAKE_BINARY_DIR}/pictures)
set(icon_sizes 16 24 32 48 64 128 256)  # of the program
set(box_sizes 48 60 72 96 144 192)      # of 48 points on screens at 100 to 400 %

function(survey_pictures target)
  file(MAKE_DIRECTORY ${picture_folder})
  file(GLOB drawings CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/desktop/pictures/*.svg)
  foreach(drawing ${drawings})
    get_filename_component(name ${drawing} NAME_WE)
    set(sizes ${box_sizes})
    if(name STREQUAL program)
      set(sizes ${icon_sizes})
    endif()
    foreach(size ${sizes})
      set(picture ${picture_folder}/${name}-${size}.png)
      add_custom_command(OUTPUT ${picture}
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture} ${drawing}
        DEPENDS ${drawing} VERBATIM)
      list(APPEND pictures ${picture})
    endforeach()
  endforeach()
  qt_add_resources(${target} pictures PREFIX /pictures BASE ${picture_folder} FILES ${pictures})
endfunction()

# The program's drawing as Windows takes it, all sizes in one file.
if(WIN32)
  find_program(ICOTOOL icotool REQUIRED)
  set(program_icon ${picture_folder}/program.ico)
  list(TRANSFORM icon_sizes REPLACE "(.+)" "${picture_folder}/program-\\1.png" OUTPUT_VARIABLE parts)
  add_custom_command(OUTPUT ${program_icon} COMMAND ${ICOTOOL} --create --output ${program_icon} ${parts}
                     DEPENDS ${parts} VERBATIM)
  add_custom_target(program_icon DEPENDS ${program_icon})
endif()
