# Makes in FOLDER the sample game and the locales for the evening's tests: LOCALEDEF and MAKE_SAMPLE_GAME are the
# programs that do it.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}/locales")
foreach(name de_DE pl_PL)
  execute_process(COMMAND "${LOCALEDEF}" --no-archive -i ${name} -f UTF-8 "${FOLDER}/locales/${name}.UTF-8"
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()
set(ENV{QT_QPA_PLATFORM} offscreen)
execute_process(COMMAND "${MAKE_SAMPLE_GAME}" "${FOLDER}/game" COMMAND_ERROR_IS_FATAL ANY)
