# SPDX-License-Identifier: MIT
# Makes the manual pages, ${manual_english} and ${manual_italian}. Included by Packaging.cmake.
set(manual_folder "${PROJECT_SOURCE_DIR}/packaging/man")
set(manual_english "${PROJECT_BINARY_DIR}/packaging/man/man1/abissora.1")
set(manual_italian "${PROJECT_BINARY_DIR}/packaging/man/it/man1/abissora.1")

# The day on them is the last release's, or what whoever builds a package sets; never the day of the build.
file(GLOB manual_metainfo "${PROJECT_SOURCE_DIR}/packaging/*.metainfo.xml*")
file(STRINGS "${manual_metainfo}" manual_release REGEX "<release [^>]*date=" LIMIT_COUNT 1)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  string(TIMESTAMP abissora_manual_date "%Y-%m-%d" UTC)
elseif(manual_release MATCHES "date=\"([0-9-]+)\"")
  set(abissora_manual_date "${CMAKE_MATCH_1}")
else()
  message(FATAL_ERROR "The metainfo in packaging names no release with a date, which the manuals bear.")
endif()
if(NOT CMAKE_SCRIPT_MODE_FILE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${manual_metainfo}")
endif()

# A number for groff: whether they describe the check for updates.
set(abissora_manual_checks 0)
if(ABISSORA_UPDATE_CHECK)
  set(abissora_manual_checks 1)
endif()
configure_file("${manual_folder}/abissora.1.in" "${manual_english}" @ONLY)
configure_file("${manual_folder}/abissora.it.1.in" "${manual_italian}" @ONLY)
