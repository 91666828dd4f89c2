# The store's engine is the one of the system, except where a target asks for the newer one that
# tools/newer_engine.sh has fetched: TARGET survey_newer_engine tells whether there is one. Both have
# the same interface, so what is compiled serves both; only the linking differs.

pkg_check_modules(SQLCIPHER REQUIRED IMPORTED_TARGET sqlcipher)
set(survey_handed_out_engine 3.46)  # as pkg-config counts 4.6, the oldest that is handed out

file(GLOB fetched_engine CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/build/engine/usr/lib/*/libsqlcipher.so.1)
if(SQLCIPHER_VERSION VERSION_LESS survey_handed_out_engine AND fetched_engine)
  add_library(survey_newer_engine SHARED IMPORTED)
  set_target_properties(survey_newer_engine PROPERTIES IMPORTED_LOCATION ${fetched_engine})
  target_include_directories(survey_newer_engine INTERFACE ${SQLCIPHER_INCLUDE_DIRS})
endif()

# What the store links: the executable's own property decides.
set(survey_engine
  "$<IF:$<BOOL:$<TARGET_PROPERTY:SURVEY_NEWER_ENGINE>>,survey_newer_engine,PkgConfig::SQLCIPHER>")
