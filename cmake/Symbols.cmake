# SPDX-License-Identifier: MIT
# abissora_add_symbols(target) draws the symbols of src/Resources/symbols.tsv when the build is configured and gives
# them to the target as the resource "symbols", under :/symbols. Call it from the directory that made the target.
#
# The work is done by node, which is here wherever npm is: CMake's own JSON commands parse the whole set again for every
# icon, and Python would be one more thing that a build needs.
set(abissora_symbols_directory "${CMAKE_CURRENT_LIST_DIR}")

function(abissora_add_symbols target)
  set(script "${abissora_symbols_directory}/extract-symbols.mjs")
  set(table "${PROJECT_SOURCE_DIR}/src/Resources/symbols.tsv")
  set(drawings "${PROJECT_SOURCE_DIR}/src/Resources/drawings")
  set(modules "${PROJECT_SOURCE_DIR}/node_modules")
  set(sets "${modules}/@iconify-json")
  set(output "${PROJECT_BINARY_DIR}/symbols")
  set(stamp "${output}/inputs.sha256")

  if(NOT IS_DIRECTORY "${sets}")
    message(FATAL_ERROR "The icon sets are missing. Fetch them with\n  npm ci --ignore-scripts\nin ${PROJECT_SOURCE_DIR}.")
  endif()

  find_program(NODE_PROGRAM NAMES node nodejs REQUIRED)

  # Contents, not times: npm gives every file of a package the same time, whatever its version.
  file(GLOB inputs CONFIGURE_DEPENDS "${drawings}/*.svg")
  list(APPEND inputs "${script}" "${table}")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${inputs})
  if(EXISTS "${modules}/.package-lock.json")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${modules}/.package-lock.json")
  endif()
  file(GLOB set_files "${sets}/*/icons.json" "${sets}/*/info.json")
  set(sums "")
  foreach(input IN LISTS inputs set_files)
    file(SHA256 "${input}" sum)
    string(APPEND sums "${sum}  ${input}\n")
  endforeach()

  set(known "")
  if(EXISTS "${stamp}")
    file(READ "${stamp}" known)
  endif()
  if(NOT known STREQUAL sums)
    execute_process(
      COMMAND ${NODE_PROGRAM} "${script}"
        --table "${table}" --sets "${sets}" --drawings "${drawings}" --output "${output}"
      RESULT_VARIABLE result ERROR_VARIABLE complaint)
    if(NOT result EQUAL 0)
      message(FATAL_ERROR "${complaint}")
    endif()
    file(WRITE "${stamp}" "${sums}")
  endif()

  qt_add_resources(sources "${output}/symbols.qrc")
  target_sources(${target} PRIVATE ${sources})
endfunction()
