# Warnings and sanitizers, carried by one interface target that every target of ours links.
add_library(vorlund_compiler INTERFACE)

if(MSVC)
  target_compile_options(vorlund_compiler INTERFACE /W4 /utf-8 $<$<BOOL:${VORLUND_WERROR}>:/WX>)
else()
  target_compile_options(
    vorlund_compiler
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              # g++ 12 sees overlapping copies in std::string's operator+ where there are none.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              $<$<BOOL:${VORLUND_WERROR}>:-Werror>)
endif()

if(WIN32)
  target_compile_definitions(vorlund_compiler INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
                                                        _WIN32_WINNT=0x0A00)
  if(MINGW)
    target_link_options(vorlund_compiler INTERFACE -static)
  endif()
endif()

if(VORLUND_SANITIZERS)
  # g++ takes what the sanitizers' checks look at for uninitialised; the other builds keep that warning.
  target_compile_options(vorlund_compiler INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_options(vorlund_compiler INTERFACE -fsanitize=${VORLUND_SANITIZERS} -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(vorlund_compiler INTERFACE -fsanitize=${VORLUND_SANITIZERS})
endif()
