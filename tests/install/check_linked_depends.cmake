# Checks the package's list of linked libraries against the built program:
# the Debian 12 package holding each shared library the program names
# (readelf -d: NEEDED) must be listed, or be a dependency of a listed one
# (a Debug build names libQt6OpenGL, which libqt6charts6 brings along), and
# every listed package must hold a library the program names.
#
# cmake -DPROGRAM=... -DLINKED="pkg (>= v);..." -DMULTIARCH=x86_64-linux-gnu
#       [-DSKIP_PACKAGES="libasan8;libubsan1"] -P check_linked_depends.cmake
cmake_policy(VERSION 3.25)
foreach(v PROGRAM LINKED MULTIARCH)
  if(NOT DEFINED ${v} OR "${${v}}" STREQUAL "")
    message(FATAL_ERROR "${v} is not set")
  endif()
endforeach()

execute_process(COMMAND readelf -d "${PROGRAM}" RESULT_VARIABLE rc OUTPUT_VARIABLE dynamic ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "readelf -d ${PROGRAM} failed: ${err}")
endif()
string(REGEX MATCHALL "Shared library: \\[[^]]+\\]" entries "${dynamic}")
if(NOT entries)
  message(FATAL_ERROR "${PROGRAM} names no shared library")
endif()

set(needed_packages)
foreach(entry IN LISTS entries)
  string(REGEX REPLACE "Shared library: \\[([^]]+)\\]" "\\1" soname "${entry}")
  execute_process(COMMAND dpkg-query -S "*/${MULTIARCH}/${soname}"
                  RESULT_VARIABLE rc OUTPUT_VARIABLE owners ERROR_QUIET)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "no installed package holds ${soname}")
  endif()
  # "libqt6core6:amd64: /usr/lib/x86_64-linux-gnu/libQt6Core.so.6"
  string(REGEX MATCH "^([^:,]+)" package "${owners}")
  message(STATUS "${soname}: ${package}")
  list(APPEND needed_packages ${package})
endforeach()
list(REMOVE_DUPLICATES needed_packages)
if(SKIP_PACKAGES)
  list(REMOVE_ITEM needed_packages ${SKIP_PACKAGES})
endif()

set(listed_packages)
foreach(dependency IN LISTS LINKED)
  string(REGEX REPLACE " *\\(.*\\)" "" package "${dependency}")
  string(STRIP "${package}" package)
  list(APPEND listed_packages ${package})
endforeach()

# What the listed packages bring along themselves.
execute_process(COMMAND dpkg-query -W --showformat=\${Depends},\n ${listed_packages}
                RESULT_VARIABLE rc OUTPUT_VARIABLE brought ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "a listed package is not installed here: ${err}")
endif()
string(REGEX REPLACE "\\([^)]*\\)" "" brought "${brought}")
string(REGEX REPLACE "[ \n]" "" brought "${brought}")
string(REPLACE "|" "," brought "${brought}")
string(REPLACE "," ";" brought "${brought}")
string(REGEX REPLACE ":[a-z0-9]+" "" brought "${brought}")

set(unlisted)
foreach(package IN LISTS needed_packages)
  if(package IN_LIST listed_packages)
    continue()
  endif()
  if(package IN_LIST brought)
    message(STATUS "${package}: comes with a listed package")
  else()
    list(APPEND unlisted ${package})
  endif()
endforeach()
set(unlinked)
foreach(package IN LISTS listed_packages)
  if(NOT package IN_LIST needed_packages)
    list(APPEND unlinked ${package})
  endif()
endforeach()
if(unlisted OR unlinked)
  message(FATAL_ERROR "the package's linked dependencies do not match the program:\n"
                      "linked but not listed: ${unlisted}\nlisted but not linked: ${unlinked}")
endif()
