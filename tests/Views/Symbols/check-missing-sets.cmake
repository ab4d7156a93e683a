# SPDX-License-Identifier: MIT
# cmake -DMODULE=Symbols.cmake -DPROJECT_SOURCE_DIR=folder -P check-missing-sets.cmake
# Configuring without the icon sets; ctest expects the message that says how to fetch them.
include("${MODULE}")
abissora_add_symbols(nothing)
