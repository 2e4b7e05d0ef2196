# Tries each include that runs against the order of the shelves, and Qt below the window: it must not compile. What
# is allowed is tried too, so that a failure means what it should.

# The headers that stand for the shelves, from the lowest up.
set(shelf_headers base/text.h disk/file_system.h gamesets/game_table.h aircraft/plane_table.h panes/form1.h
                  window/main_window.h)

# vorlund_try_include(SHELF HEADER ALLOWED): compiles a source of the shelf that includes the header.
function(vorlund_try_include shelf header allowed)
  string(MAKE_C_IDENTIFIER "${shelf}_${header}" name)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/shelves/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@header@\"\n" @ONLY)
  set(folders $<TARGET_PROPERTY:vorlund_${shelf},INCLUDE_DIRECTORIES>)
  add_test(
    NAME Shelves.${name}
    COMMAND ${CMAKE_CXX_COMPILER} -std=c++20 -fPIC -fsyntax-only "$<$<BOOL:${folders}>:-I$<JOIN:${folders},;-I>>" ${source}
    COMMAND_EXPAND_LISTS)
  if(NOT allowed)
    set_tests_properties(Shelves.${name} PROPERTIES PASS_REGULAR_EXPRESSION "${header}: No such file or directory")
  endif()
endfunction()

set(base_sees base)
set(disk_sees base disk)
set(gamesets_sees base disk gamesets)
set(aircraft_sees base disk aircraft)
set(panes_sees base disk gamesets aircraft panes)
foreach(shelf base disk gamesets aircraft panes)
  foreach(header IN LISTS shelf_headers)
    string(REGEX MATCH "^[a-z]+" above ${header})
    if(${above} IN_LIST ${shelf}_sees)
      vorlund_try_include(${shelf} ${header} ON)
    else()
      vorlund_try_include(${shelf} ${header} OFF)
    endif()
  endforeach()
  vorlund_try_include(${shelf} QWidget OFF)
endforeach()
