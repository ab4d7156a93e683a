# SPDX-License-Identifier: MIT
# Runs first in the script that CMake makes of all install commands, and makes the folders that the script installs into
# readable by everybody. CMake itself would make them with the umask of whoever installs, and leave files in them that
# nobody else reaches. Folders that are there already stay as they are.
file(STRINGS "${CMAKE_PARENT_LIST_FILE}" destinations REGEX "file\\(INSTALL DESTINATION \"\\\${CMAKE_INSTALL_PREFIX}/")
foreach(destination IN LISTS destinations)
  string(REGEX REPLACE ".*CMAKE_INSTALL_PREFIX}/([^\"]+)\".*" "\\1" folder "${destination}")
  set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${folder}")
  set(missing "")
  while(NOT EXISTS "${folder}")
    list(PREPEND missing "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
  foreach(folder IN LISTS missing)
    file(MAKE_DIRECTORY "${folder}")
    file(CHMOD "${folder}" PERMISSIONS
      OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  endforeach()
endforeach()
