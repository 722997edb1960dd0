# The installed program on its own: installs the build into a staging folder
# (DESTDIR, prefix /usr), moves the tree elsewhere, and starts the moved
# program headless to its title screen; then takes its data folder away and
# checks the program names the folder it looked in and --assets, and fails.
#
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -P install_check.cmake
foreach(var BUILD_DIR WORK_DIR)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "${var} not set")
  endif()
endforeach()

set(stage ${WORK_DIR}/stage)
set(moved ${WORK_DIR}/moved)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

execute_process(COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${stage}
                        ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix /usr
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${rc}")
endif()
file(RENAME ${stage}/usr ${moved})

# What a desktop expects to find in the installed tree.
foreach(file
    bin/partitude
    share/applications/org.partitude.Partitude.desktop
    share/metainfo/org.partitude.Partitude.metainfo.xml
    share/icons/hicolor/scalable/apps/org.partitude.Partitude.svg
    share/icons/hicolor/16x16/apps/org.partitude.Partitude.png
    share/icons/hicolor/256x256/apps/org.partitude.Partitude.png
    share/partitude/screenshots/title.png
    share/doc/partitude/copyright
    share/partitude/assets/ico/fraction.ico)
  if(NOT EXISTS ${moved}/${file})
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

function(start_moved result out err)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LANGUAGE=en_GB LC_ALL=C.UTF-8
                          ${moved}/bin/partitude --check-title --settings ${WORK_DIR}/settings
                  WORKING_DIRECTORY ${WORK_DIR}
                  RESULT_VARIABLE r OUTPUT_VARIABLE o ERROR_VARIABLE e TIMEOUT 60)
  set(${result} "${r}" PARENT_SCOPE)
  set(${out} "${o}" PARENT_SCOPE)
  set(${err} "${e}" PARENT_SCOPE)
endfunction()

start_moved(rc out err)
if(NOT rc EQUAL 0 OR NOT out MATCHES "reached its title screen \\(Titlefrm\\)")
  message(FATAL_ERROR "the moved program did not reach its title screen (exit ${rc}):\n${out}\n${err}")
endif()
# Its sounds from the moved tree's own module, not from the build tree.
if(NOT out MATCHES "Its sounds play through ${moved}/lib")
  message(FATAL_ERROR "the moved program did not load its own sound module:\n${out}\n${err}")
endif()
message(STATUS "moved install: ${out}")

# Without its data folder the program must say where it looked and how to
# name another folder, and end with the asset error's code at once.
set(fatal_exit_code 3)
file(REMOVE_RECURSE ${moved}/share/partitude/assets)
start_moved(rc out err)
if(NOT rc EQUAL fatal_exit_code)
  message(FATAL_ERROR "without its data the program ended with ${rc}, not ${fatal_exit_code}:\n${err}")
endif()
foreach(expected "${moved}/share/partitude/assets" "--assets")
  string(FIND "${err}" "${expected}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the message does not name ${expected}:\n${err}")
  endif()
endforeach()
message(STATUS "missing data: ${err}")
