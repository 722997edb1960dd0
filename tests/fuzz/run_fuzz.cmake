# Run by CTest (test "fuzz_metafile"): configures and builds the clang fuzz
# project in BUILD_DIR, then fuzzes the metafile reader for SECONDS seconds
# over the drawn worksheets and what earlier runs found. Fails on any crash,
# sanitizer report, leak or slow input.
#   -DSOURCE_DIR=tests/fuzz -DBUILD_DIR=... -DSEED_DIR=build/assets/wmf
#   -DCLANG=clang++ -DSECONDS=60 [-DLAUNCHER=ccache]
foreach(var SOURCE_DIR BUILD_DIR SEED_DIR CLANG SECONDS)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "run_fuzz.cmake needs -D${var}=...")
  endif()
endforeach()

set(configure_args -S ${SOURCE_DIR} -B ${BUILD_DIR} -DCMAKE_BUILD_TYPE=RelWithDebInfo
    -DCMAKE_CXX_COMPILER=${CLANG} -DPARTITUDE_SEED_DIR=${SEED_DIR})
if(LAUNCHER)
  list(APPEND configure_args -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()
execute_process(COMMAND ${CMAKE_COMMAND} ${configure_args} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "configuring the fuzzer failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIR} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "building the fuzzer failed")
endif()

# One worker, as CI has two cores. Inputs take milliseconds; one that takes
# seconds, even on a busy machine, is a hang.
set(hang_seconds 3)
execute_process(
  COMMAND ${BUILD_DIR}/metafile_fuzz -dict=${SOURCE_DIR}/metafile.dict -max_total_time=${SECONDS}
          -timeout=${hang_seconds} -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix=${BUILD_DIR}/
          ${BUILD_DIR}/corpus ${BUILD_DIR}/seeds
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the fuzzer found a fault (exit ${result}); the input is in ${BUILD_DIR}")
endif()
