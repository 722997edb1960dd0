# Builds the library and the random play with AddressSanitizer and
# UndefinedBehaviorSanitizer in BINARY, then plays EVENTS events. Prints how
# long the build and the play took.
foreach(var SOURCE BINARY COMPILER ASSETS EVENTS SUPPRESSIONS)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "sanitized.cmake needs -D${var}=...")
  endif()
endforeach()

set(flags "-O1 -g1 -fno-omit-frame-pointer -fsanitize=address,undefined -fno-sanitize-recover=all")
set(configure ${CMAKE_COMMAND} -S ${SOURCE} -B ${BINARY}
  -DCMAKE_BUILD_TYPE=Sanitized
  -DCMAKE_CXX_COMPILER=${COMPILER}
  "-DCMAKE_CXX_FLAGS=${flags}"
  "-DCMAKE_EXE_LINKER_FLAGS=-fsanitize=address,undefined"
  -DPARTITUDE_PLAY_ASSETS=${ASSETS})
if(LAUNCHER)
  list(APPEND configure -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()

string(TIMESTAMP start "%s")
execute_process(COMMAND ${configure} OUTPUT_QUIET RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "configuring the sanitizer build failed")
endif()
cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY} --target randomplay --parallel ${cores}
  OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "the sanitizer build failed:\n${output}")
endif()
string(TIMESTAMP built "%s")
math(EXPR buildSeconds "${built} - ${start}")
message(STATUS "sanitizer build: ${buildSeconds} s")

set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{ASAN_OPTIONS} "detect_leaks=1:abort_on_error=0:detect_stack_use_after_return=0")
set(ENV{LSAN_OPTIONS} "suppressions=${SUPPRESSIONS}:print_suppressions=0")
set(ENV{UBSAN_OPTIONS} "print_stacktrace=1:halt_on_error=1")
execute_process(COMMAND ${BINARY}/tests/play/randomplay --seed 19 --events ${EVENTS}
  --failure-file ${BINARY}/randomplay-failure.txt RESULT_VARIABLE failed)
string(TIMESTAMP played "%s")
math(EXPR playSeconds "${played} - ${built}")
message(STATUS "sanitizer play: ${EVENTS} events in ${playSeconds} s")
if(failed)
  message(FATAL_ERROR "the random play under the sanitizers failed (exit ${failed})")
endif()
