# SPDX-License-Identifier: MIT
# Who makes the program and where it lives on the web. The defaults are on a reserved name that never answers.
# "cmake -DABISSORA_WEBSITE_URL=... -P cmake/Product.cmake" only checks the addresses.
set(ABISSORA_AUTHOR "Abissora" CACHE STRING "The author's name in the About window and in the settings")
set(ABISSORA_WEBSITE_URL "https://abissora.example/" CACHE STRING "The program's website: https, ending in /")
set(ABISSORA_MANIFEST_URL "" CACHE STRING "Where the update check looks; empty: version.json on the website")

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
