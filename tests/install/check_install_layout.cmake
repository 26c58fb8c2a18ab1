# Installs the build tree into a fresh prefix and checks what lies there:
# exactly the expected files, an executable program, a desktop entry whose
# Exec and Icon name what was installed, metainfo that launches that entry
# and carries this version, and PNGs of the size their folder says.
#
# cmake -DBUILD_DIR=... -DPREFIX=... -DAPP_ID=... -DVERSION=... -P check_install_layout.cmake
cmake_policy(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/expected_files.cmake)

foreach(v BUILD_DIR PREFIX APP_ID VERSION)
  if(NOT DEFINED ${v})
    message(FATAL_ERROR "${v} is not set")
  endif()
endforeach()

file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}"
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${rc}):\n${out}${err}")
endif()

expected_install_files(expected ${APP_ID})
file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
list(SORT installed)
expect_same_files("installed files under ${PREFIX}" "${expected}" "${installed}")

# The program: an ELF file the user may run.
file(READ "${PREFIX}/bin/brindlepot" magic LIMIT 4 HEX)
if(NOT magic STREQUAL "7f454c46")
  message(FATAL_ERROR "bin/brindlepot is not a program (starts with ${magic})")
endif()
execute_process(COMMAND test -x "${PREFIX}/bin/brindlepot" RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "bin/brindlepot is not executable")
endif()

function(expect_line file line)
  file(STRINGS "${file}" found REGEX "^${line}$")
  if(NOT found)
    message(FATAL_ERROR "${file} has no line matching '${line}'")
  endif()
endfunction()

set(desktop "${PREFIX}/share/applications/${APP_ID}.desktop")
expect_line("${desktop}" "Name=Brindlepot")
expect_line("${desktop}" "Exec=brindlepot( .*)?")
expect_line("${desktop}" "Icon=${APP_ID}")
expect_line("${desktop}" "Terminal=false")
expect_line("${desktop}" "Categories=.+;")
expect_line("${desktop}" "Keywords=.*recipe;.*shopping list;.*menu;.*weight;.*pantry;.*")

set(metainfo "${PREFIX}/share/metainfo/${APP_ID}.metainfo.xml")
file(READ "${metainfo}" xml)
foreach(part
    "<id>${APP_ID}</id>"
    "<launchable type=\"desktop-id\">${APP_ID}.desktop</launchable>"
    "<binary>brindlepot</binary>"
    "<content_rating type=\"oars-1.1\"")
  string(FIND "${xml}" "${part}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${metainfo} lacks ${part}")
  endif()
endforeach()
string(REGEX MATCH "<release version=\"([^\"]+)\"" release "${xml}")
if(NOT CMAKE_MATCH_1 STREQUAL VERSION)
  message(FATAL_ERROR "the newest release in the metainfo is '${CMAKE_MATCH_1}', the project is ${VERSION}")
endif()

# Width and height stand in the PNG header, four bytes each from byte 16.
foreach(n IN LISTS ICON_SIZES)
  set(png "${PREFIX}/share/icons/hicolor/${n}x${n}/apps/${APP_ID}.png")
  file(READ "${png}" header LIMIT 24 HEX)
  string(SUBSTRING "${header}" 0 16 signature)
  string(SUBSTRING "${header}" 32 8 w)
  string(SUBSTRING "${header}" 40 8 h)
  math(EXPR w "0x${w}")
  math(EXPR h "0x${h}")
  if(NOT signature STREQUAL "89504e470d0a1a0a" OR NOT w EQUAL n OR NOT h EQUAL n)
    message(FATAL_ERROR "${png} is not a ${n} x ${n} PNG (${signature}, ${w} x ${h})")
  endif()
endforeach()

file(READ "${PREFIX}/share/icons/hicolor/scalable/apps/${APP_ID}.svg" svg)
if(NOT svg MATCHES "<svg[^>]*viewBox=\"0 0 ([0-9]+) ([0-9]+)\"" OR NOT CMAKE_MATCH_1 EQUAL CMAKE_MATCH_2)
  message(FATAL_ERROR "the scalable icon is not a square SVG")
endif()

message(STATUS "installed into ${PREFIX}: ${installed}")
