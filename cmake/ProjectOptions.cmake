# SPDX-License-Identifier: MIT
# One interface target, abissora_options, carries what every target of this project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Only while developing: a newer compiler that knows another warning still builds a release.
option(ABISSORA_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
option(ABISSORA_HARDENING "Stack, control flow and library calls are guarded (GCC and clang, not in Debug builds)" ON)
set(ABISSORA_SANITIZERS "" CACHE STRING "Sanitizers for -fsanitize=, e.g. address,undefined")
option(ABISSORA_COVERAGE "Count the lines that are run (GCC), see scripts/checks/coverage" OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers are cached only when ccache may ignore their time stamps.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

add_library(abissora_options INTERFACE)
target_compile_definitions(abissora_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_FOREACH QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(MSVC)
  target_compile_options(abissora_options INTERFACE /W4 /permissive- /utf-8)
  if(ABISSORA_WARNINGS_AS_ERRORS)
    target_compile_options(abissora_options INTERFACE /WX)
  endif()
else()
  target_compile_options(abissora_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-qual -Wformat=2 -Wimplicit-fallthrough)
  if(ABISSORA_WARNINGS_AS_ERRORS)
    target_compile_options(abissora_options INTERFACE -Werror)
  endif()
  # Programs too are compiled as the libraries are: a precompiled header fits only where these options are the same.
  if(NOT WIN32) # where all code is, and the compiler warns of the option
    target_compile_options(abissora_options INTERFACE -fPIC)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # ccache needs it to cache uses of a precompiled header.
    target_compile_options(abissora_options INTERFACE -fpch-preprocess)
  elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(abissora_options INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

include(Hardening)

if(ABISSORA_SANITIZERS)
  target_compile_options(abissora_options INTERFACE
    -fsanitize=${ABISSORA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(abissora_options INTERFACE -fsanitize=${ABISSORA_SANITIZERS})
endif()

if(ABISSORA_COVERAGE)
  target_compile_options(abissora_options INTERFACE --coverage -fprofile-abs-path)
  target_link_options(abissora_options INTERFACE --coverage)
endif()
