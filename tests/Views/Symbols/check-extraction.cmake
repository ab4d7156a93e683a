# SPDX-License-Identifier: MIT
# cmake -DNODE=node -DSCRIPT=extract-symbols.mjs -DTABLE=name -DOUTPUT=folder [-DREFUSAL=text] -P check-extraction.cmake
# Runs the extraction on a table of the fixtures. With a refusal it must fail, say so and write nothing, without one
# its files must be those expected.
set(fixtures "${CMAKE_CURRENT_LIST_DIR}/fixtures")
file(REMOVE_RECURSE "${OUTPUT}")
execute_process(
  COMMAND ${NODE} "${SCRIPT}" --table "${fixtures}/tables/${TABLE}.tsv" --sets "${fixtures}/sets"
    --drawings "${fixtures}/drawings" --output "${OUTPUT}"
  RESULT_VARIABLE result ERROR_VARIABLE complaint)

if(REFUSAL)
  string(FIND "${complaint}" "${REFUSAL}" found)
  if(result EQUAL 0 OR found EQUAL -1 OR EXISTS "${OUTPUT}")
    message(FATAL_ERROR "Expected \"${REFUSAL}\" and nothing written; got result ${result} and \"${complaint}\".")
  endif()
  return()
endif()

if(NOT result EQUAL 0)
  message(FATAL_ERROR "Refused: ${complaint}")
endif()
file(GLOB expected RELATIVE "${fixtures}/expected" "${fixtures}/expected/*")
file(GLOB written RELATIVE "${OUTPUT}" "${OUTPUT}/*")
if(NOT written STREQUAL expected)
  message(FATAL_ERROR "Expected ${expected}, got ${written}.")
endif()
foreach(name IN LISTS expected)
  file(READ "${fixtures}/expected/${name}" wanted)
  file(READ "${OUTPUT}/${name}" got)
  if(NOT got STREQUAL wanted)
    message(SEND_ERROR "${name}: expected\n${wanted}got\n${got}")
  endif()
endforeach()
