# Removes the files that the last installation from this build tree wrote, and the folders named after the
# library that are then empty.
if(NOT EXISTS "${MANIFEST}")
  message(FATAL_ERROR "Nothing to uninstall: ${MANIFEST} does not exist.")
endif()
file(STRINGS "${MANIFEST}" files ENCODING UTF-8)
set(folders "")
foreach(file IN LISTS files)
  set(file "$ENV{DESTDIR}${file}")
  if(EXISTS "${file}" OR IS_SYMLINK "${file}")
    message(STATUS "Removing ${file}")
    file(REMOVE "${file}")
  endif()
  cmake_path(GET file PARENT_PATH folder)
  while(folder MATCHES "/(QUVARDBS1C|quvardbs1c)(/|$)")
    list(APPEND folders "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()

# Longer paths first: a folder comes before its parent.
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
  execute_process(COMMAND rmdir "${folder}" ERROR_QUIET)  # fails if the folder is not empty
endforeach()
file(REMOVE "${MANIFEST}")
