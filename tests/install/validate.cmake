# Runs a desktop-file validator on an installed file; without the tool the
# test says so and is counted as skipped (SKIP_REGULAR_EXPRESSION).
#
#   cmake -DTOOL=<name> -DARGS=<args;...> -DFILE=<file> -P validate.cmake
find_program(tool_path ${TOOL})
if(NOT tool_path)
  message("${TOOL} is not installed: skipping the check of ${FILE}")
  return()
endif()
execute_process(COMMAND ${tool_path} ${ARGS} ${FILE} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${TOOL} refuses ${FILE} (exit ${rc})")
endif()
