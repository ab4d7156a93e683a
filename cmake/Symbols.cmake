# SPDX-License-Identifier: MIT
# abissora_add_symbols(target) draws the symbols of src/Resources/symbols.tsv when the build is configured and gives
# them to the target as the resource "symbols", under :/symbols. Call it from the directory that made the target.
#
# The work is done by node, which is here wherever npm is: CMake's own JSON commands parse the whole set again for every
# icon, and Python would be one more thing that a build needs. A source archive holds the drawn symbols instead of the
# sets, in src/Resources/extracted, and needs neither.
set(abissora_symbols_directory "${CMAKE_CURRENT_LIST_DIR}")

function(abissora_add_symbols target)
  set(script "${abissora_symbols_directory}/extract-symbols.mjs")
  set(table "${PROJECT_SOURCE_DIR}/src/Resources/symbols.tsv")
  set(drawings "${PROJECT_SOURCE_DIR}/src/Resources/drawings")
  set(modules "${PROJECT_SOURCE_DIR}/node_modules")
  set(sets "${modules}/@iconify-json")
  set(output "${PROJECT_BINARY_DIR}/symbols")
  set(stamp "${output}/all-inputs.sha256")
  set(extracted "${PROJECT_SOURCE_DIR}/src/Resources/extracted")

  if(NOT IS_DIRECTORY "${sets}" AND NOT EXISTS "${extracted}/symbols.qrc")
    message(FATAL_ERROR "The icon sets are missing. Fetch them with\n  npm ci --ignore-scripts\nin ${PROJECT_SOURCE_DIR}.")
  endif()

  # Contents, not times: npm gives every file of a package the same time, whatever its version.
  file(GLOB inputs CONFIGURE_DEPENDS "${drawings}/*.svg")
  list(APPEND inputs "${script}" "${table}")
  list(SORT inputs)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${inputs})
  abissora_sums(sums ${inputs})

  if(IS_DIRECTORY "${sets}")
    abissora_draw_symbols()
  else()
    file(READ "${extracted}/inputs.sha256" known)
    if(NOT known STREQUAL sums)
      message(FATAL_ERROR "The symbols in ${extracted} were drawn from another table. Fetch the icon sets with\n"
        "  npm ci --ignore-scripts\nin ${PROJECT_SOURCE_DIR}, so that they can be drawn again.")
    endif()
    set(output "${extracted}")
  endif()

  qt_add_resources(sources "${output}/symbols.qrc")
  target_sources(${target} PRIVATE ${sources})
endfunction()

# The SHA-256 of each file, by its path in the project.
function(abissora_sums result)
  set(sums "")
  foreach(file IN LISTS ARGN)
    file(SHA256 "${file}" sum)
    file(RELATIVE_PATH path "${PROJECT_SOURCE_DIR}" "${file}")
    string(APPEND sums "${sum}  ${path}\n")
  endforeach()
  set(${result} "${sums}" PARENT_SCOPE)
endfunction()

# Draws the symbols anew if anything that they come from has changed. With the variables of abissora_add_symbols.
macro(abissora_draw_symbols)
  find_program(NODE_PROGRAM NAMES node nodejs REQUIRED)
  if(EXISTS "${modules}/.package-lock.json")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${modules}/.package-lock.json")
  endif()
  file(GLOB set_files "${sets}/*/icons.json" "${sets}/*/info.json")
  abissora_sums(all_sums ${inputs} ${set_files})
  set(known "")
  if(EXISTS "${stamp}")
    file(READ "${stamp}" known)
  endif()
  if(NOT known STREQUAL all_sums)
    execute_process(
      COMMAND ${NODE_PROGRAM} "${script}"
        --table "${table}" --sets "${sets}" --drawings "${drawings}" --output "${output}"
      RESULT_VARIABLE result ERROR_VARIABLE complaint)
    if(NOT result EQUAL 0)
      message(FATAL_ERROR "${complaint}")
    endif()
    file(WRITE "${output}/inputs.sha256" "${sums}")
    file(WRITE "${stamp}" "${all_sums}")
  endif()
endmacro()
