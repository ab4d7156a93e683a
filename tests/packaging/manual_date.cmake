# SPDX-License-Identifier: MIT
# cmake -DSOURCE=folder -DBUILD=folder -P manual_date.cmake: with SOURCE_DATE_EPOCH the manuals bear that day in UTC,
# without it the last release's.
set(PROJECT_SOURCE_DIR "${SOURCE}")
set(PROJECT_BINARY_DIR "${BUILD}")
file(GLOB metainfo "${SOURCE}/packaging/*.metainfo.xml*")
file(READ "${metainfo}" releases)
string(REGEX MATCH "<release [^>]*date=\"([0-9-]+)\"" newest "${releases}")
set(release "${CMAKE_MATCH_1}")

function(check_date day)
  include("${SOURCE}/cmake/Manuals.cmake")
  foreach(manual "${manual_english}" "${manual_italian}")
    file(STRINGS "${manual}" title REGEX "^\\.TH ")
    if(NOT title MATCHES "^\\.TH ABISSORA 1 \"${day}\" ")
      message(SEND_ERROR "${manual} should bear ${day}: ${title}")
    endif()
  endforeach()
endfunction()

check_date(1970-01-02)
unset(ENV{SOURCE_DATE_EPOCH})
check_date(${release})
