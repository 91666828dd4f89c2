# The first part of README.md, for those who fill in the survey, as a page of the program: in
# build/guide with its pictures and as resources of `target` under :/guide. F1 opens it.

set(guide_folder ${CMAKE_BINARY_DIR}/guide)

function(survey_guide target)
  set(guide ${guide_folder}/guide.md)
  add_custom_command(OUTPUT ${guide}
    COMMAND ${CMAKE_COMMAND} -D README=${CMAKE_SOURCE_DIR}/README.md -D GUIDE=${guide}
            -P ${CMAKE_SOURCE_DIR}/cmake/CutGuide.cmake
    DEPENDS ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/cmake/CutGuide.cmake VERBATIM)
  file(GLOB pictures CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/docs/*.png)
  foreach(picture ${pictures})
    add_custom_command(OUTPUT ${guide_folder}/${picture}
      COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${picture} ${guide_folder}/${picture}
      DEPENDS ${CMAKE_SOURCE_DIR}/${picture} VERBATIM)
    list(APPEND guide ${guide_folder}/${picture})
  endforeach()
  qt_add_resources(${target} guide PREFIX /guide BASE ${guide_folder} FILES ${guide})
endfunction()
