# The files `cmake --install` lays out, relative to the prefix: the program,
# its desktop entry, its metainfo and its hicolor icon set. Shared by the
# install test and the package test.
set(ICON_SIZES 16 24 32 48 64 128 256)

function(expected_install_files out app_id)
  set(files
    bin/brindlepot
    share/applications/${app_id}.desktop
    share/metainfo/${app_id}.metainfo.xml
    share/icons/hicolor/scalable/apps/${app_id}.svg)
  foreach(n IN LISTS ICON_SIZES)
    list(APPEND files share/icons/hicolor/${n}x${n}/apps/${app_id}.png)
  endforeach()
  list(SORT files)
  set(${out} ${files} PARENT_SCOPE)
endfunction()

function(expect_same_files what expected actual)
  set(missing ${expected})
  if(actual)
    list(REMOVE_ITEM missing ${actual})
  endif()
  set(extra ${actual})
  if(expected)
    list(REMOVE_ITEM extra ${expected})
  endif()
  if(missing OR extra)
    list(JOIN missing "\n  " m)
    list(JOIN extra "\n  " e)
    message(FATAL_ERROR "${what}:\nmissing:\n  ${m}\nnot expected:\n  ${e}")
  endif()
endfunction()
