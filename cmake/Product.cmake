# SPDX-License-Identifier: MIT
# Who makes the program, where it lives on the web and what desktops know it by. The defaults are on a reserved name that
# never answers. "cmake -DABISSORA_WEBSITE_URL=... -P cmake/Product.cmake" only checks the values.
set(ABISSORA_AUTHOR "Abissora" CACHE STRING "The author's name in the About window and in the settings")
set(ABISSORA_WEBSITE_URL "https://abissora.example/" CACHE STRING "The program's website: https, ending in /")
set(ABISSORA_MANIFEST_URL "" CACHE STRING "Where the update check looks; empty: version.json on the website")
set(ABISSORA_APPLICATION_ID "com.example.abissora" CACHE STRING
  "What desktops know the program by: a domain of the author's backwards, then the program's name")

if(NOT ABISSORA_WEBSITE_URL MATCHES "^https://[^/ ]+/(.*/)?$")
  message(FATAL_ERROR "ABISSORA_WEBSITE_URL must begin with https:// and end in /: ${ABISSORA_WEBSITE_URL}")
endif()
set(abissora_manifest_url "${ABISSORA_MANIFEST_URL}")
if(abissora_manifest_url STREQUAL "")
  set(abissora_manifest_url "${ABISSORA_WEBSITE_URL}version.json")
endif()
if(NOT abissora_manifest_url MATCHES "^https://[^/ ]+/")
  message(FATAL_ERROR "ABISSORA_MANIFEST_URL must begin with https://: ${ABISSORA_MANIFEST_URL}")
endif()

# The default id is on a reserved name as well, on one that ends as names in use do, and has no capitals: validators hint
# at anything else.
# Desktop entry, AppStream component, icons and sandbox are named by it. Letters, digits and _ alone are what all of
# those take; two dots at least and 255 characters at most is what the bus and the sandbox ask for.
set(id_element "[A-Za-z_][A-Za-z0-9_]*")
string(LENGTH "${ABISSORA_APPLICATION_ID}" id_length)
if(NOT ABISSORA_APPLICATION_ID MATCHES "^${id_element}\\.${id_element}(\\.${id_element})+$" OR id_length GREATER 255)
  message(FATAL_ERROR "ABISSORA_APPLICATION_ID must read like org.example.Program: ${ABISSORA_APPLICATION_ID}")
endif()
