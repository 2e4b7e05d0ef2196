# What makes an executable a Windows program for players: no console, icon, version, manifest, and libraries that come
# from Windows' own folder alone.
set(VORLUND_HOST_TOOLS "" CACHE PATH "Folder with the tools of a build for this machine; needed when cross-compiling")

enable_language(RC)

# The system's libraries that the program is linked with but kernel32 and msvcrt, each with the file that its functions
# are taken from. Most the loader would look for in the program's folder first, and what these need in turn as well.
set(vorlund_delayed
    advapi32=advapi32.dll
    authz=authz.dll
    comctl32=comctl32.dll
    comdlg32=comdlg32.dll
    d2d1=d2d1.dll
    d3d11=d3d11.dll
    d3d12=d3d12.dll
    d3d9=d3d9.dll
    dnsapi=dnsapi.dll
    dwmapi=dwmapi.dll
    dwrite=dwrite.dll
    dxgi=dxgi.dll
    gdi32=gdi32.dll
    imm32=imm32.dll
    mpr=mpr.dll
    netapi32=netapi32.dll
    ole32=ole32.dll
    oleaut32=oleaut32.dll
    rpcrt4=rpcrt4.dll
    runtimeobject=combase.dll
    setupapi=setupapi.dll
    shcore=shcore.dll
    shell32=shell32.dll
    shlwapi=shlwapi.dll
    synchronization=kernelbase.dll
    user32=user32.dll
    userenv=userenv.dll
    uxtheme=uxtheme.dll
    version=version.dll
    winmm=winmm.dll
    winspool=winspool.drv
    ws2_32=ws2_32.dll
    wtsapi32=wtsapi32.dll)

# Sets `path` to a tool that runs on this machine.
function(vorlund_find_host_tool name path)
  if(NOT CMAKE_CROSSCOMPILING)
    set(${path} ${name} PARENT_SCOPE)
  elseif(VORLUND_HOST_TOOLS)
    set(${path} ${VORLUND_HOST_TOOLS}/${name} PARENT_SCOPE)
  else()
    message(FATAL_ERROR "VORLUND_HOST_TOOLS names no folder with ${name}; scripts/package builds it")
  endif()
endfunction()

# Lets the target find its libraries in the system's folder alone: the loader is told so, and all but the two that
# every program begins with are loaded at their first use, by packaging/windows/system_libraries.cpp.
function(vorlund_use_system_libraries target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /guard:cf)
    target_link_options(${target} PRIVATE /guard:cf /DEPENDENTLOADFLAG:0x800)
    return()
  endif()
  set(folder ${CMAKE_BINARY_DIR}/delayed)
  file(MAKE_DIRECTORY ${folder})
  foreach(pair ${vorlund_delayed})
    string(REGEX MATCH "^(.*)=(.*)$" pair ${pair})
    set(name ${CMAKE_MATCH_1})
    set(library ${CMAKE_MATCH_2})
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=lib${name}.a OUTPUT_VARIABLE direct
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_NM} --extern-only --defined-only ${direct} OUTPUT_VARIABLE symbols ERROR_QUIET
                    COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "__imp_[A-Za-z0-9_@?]+" functions "${symbols}")
    list(REMOVE_DUPLICATES functions)
    list(SORT functions)
    string(REPLACE "__imp_" "" functions "${functions}")
    string(REPLACE ";" "\n" functions "${functions}")
    file(WRITE ${folder}/${name}.def "LIBRARY ${library}\nEXPORTS\n${functions}\n")
    execute_process(COMMAND ${CMAKE_DLLTOOL} --input-def ${name}.def --output-delaylib lib${name}.a
                    WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  # Found before the libraries of the same names that the compiler brings.
  target_link_directories(${target} BEFORE PRIVATE ${folder})
  target_link_options(${target} PRIVATE -Wl,--undefined=_load_config_used)
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/packaging/windows/system_libraries.cpp)
  vorlund_find_host_tool(name_load_config tool)
  add_custom_command(TARGET ${target} POST_BUILD COMMAND ${tool} $<TARGET_FILE:${target}> VERBATIM)
endfunction()

# Gives the executable target its resources and links it as a program with a window.
function(vorlund_make_windows_program target)
  set(packaging ${PROJECT_SOURCE_DIR}/packaging)
  set(VORLUND_ICON ${CMAKE_CURRENT_BINARY_DIR}/vorlund.ico)
  set(VORLUND_MANIFEST ${packaging}/windows/vorlund.manifest)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/vorlund.rc)
  vorlund_find_host_tool(make_icon make_icon)
  add_custom_command(
    OUTPUT ${VORLUND_ICON}
    COMMAND ${make_icon} ${packaging}/icon/vorlund.svg ${VORLUND_ICON}
    DEPENDS ${make_icon} ${packaging}/icon/vorlund.svg
    VERBATIM)
  configure_file(${packaging}/windows/vorlund.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${VORLUND_ICON};${VORLUND_MANIFEST}")
  target_sources(${target} PRIVATE ${resources} ${VORLUND_ICON})
  if(MSVC)
    target_sources(${target} PRIVATE ${VORLUND_MANIFEST})
  endif()
  set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
  vorlund_use_system_libraries(${target})
endfunction()
