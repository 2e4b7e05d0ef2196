# What makes an executable a Windows program for players: no console, icon, version, manifest.
set(VORLUND_ICON_MAKER "" CACHE FILEPATH "make_icon of a build for this machine; needed when cross-compiling")

enable_language(RC)

# Gives the executable target its resources and links it as a program with a window.
function(vorlund_make_windows_program target)
  set(packaging ${PROJECT_SOURCE_DIR}/packaging)
  set(VORLUND_ICON ${CMAKE_CURRENT_BINARY_DIR}/vorlund.ico)
  set(VORLUND_MANIFEST ${packaging}/windows/vorlund.manifest)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/vorlund.rc)
  if(NOT CMAKE_CROSSCOMPILING)
    set(VORLUND_ICON_MAKER make_icon)
  elseif(NOT VORLUND_ICON_MAKER)
    message(FATAL_ERROR "VORLUND_ICON_MAKER names no make_icon; scripts/package builds one and passes it on")
  endif()
  add_custom_command(
    OUTPUT ${VORLUND_ICON}
    COMMAND ${VORLUND_ICON_MAKER} ${packaging}/icon/vorlund.svg ${VORLUND_ICON}
    DEPENDS ${VORLUND_ICON_MAKER} ${packaging}/icon/vorlund.svg
    VERBATIM)
  configure_file(${packaging}/windows/vorlund.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${VORLUND_ICON};${VORLUND_MANIFEST}")
  target_sources(${target} PRIVATE ${resources} ${VORLUND_ICON})
  if(MSVC)
    target_sources(${target} PRIVATE ${VORLUND_MANIFEST})
  endif()
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
