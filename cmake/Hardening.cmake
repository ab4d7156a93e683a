# SPDX-License-Identifier: MIT
# What guards the program against its own mistakes; packaging/check-hardening.py looks for it in the finished program.
# Not in Debug builds: FORTIFY works only in optimised code, and the sanitizers want to see what it hides.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

if(NOT ABISSORA_HARDENING OR CMAKE_BUILD_TYPE STREQUAL "Debug" OR ABISSORA_SANITIZERS OR MSVC OR APPLE OR WIN32)
  return()
endif()

check_pie_supported(LANGUAGES CXX)

foreach(option -fstack-protector-strong -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
  string(MAKE_C_IDENTIFIER "takes${option}" taken)
  check_cxx_compiler_flag(${option} ${taken})
  if(${taken})
    target_compile_options(abissora_options INTERFACE ${option})
  endif()
endforeach()
# Distributions and compilers bring a definition of their own.
target_compile_options(abissora_options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS)

# The start files of Debian 12's C library carry no mark for control flow protection, so the linker would take it off the
# whole program. Shadow stacks ask nothing of them and are marked again; IBT would need a landing pad at _start.
foreach(option "-Wl,-z,relro" "-Wl,-z,now" "-Wl,-z,shstk")
  string(MAKE_C_IDENTIFIER "takes${option}" taken)
  check_linker_flag(CXX ${option} ${taken})
  if(${taken})
    target_link_options(abissora_options INTERFACE ${option})
  endif()
endforeach()
