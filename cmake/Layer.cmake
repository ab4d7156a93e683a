# SPDX-License-Identifier: MIT
# A layer is a static library with an include root of its own: what it does not link, it cannot include.
#
#   abissora_layer(Models SOURCES Equipment.h Equipment.cpp DEPENDS Platform LINK Qt6::Core)

# The one precompiled header, of Qt Core and the standard library; every target of the project uses it.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/precompiled.cpp" CONTENT "" @ONLY)
add_library(abissora_precompiled OBJECT "${PROJECT_BINARY_DIR}/precompiled.cpp")
set_target_properties(abissora_precompiled PROPERTIES AUTOMOC OFF)
target_link_libraries(abissora_precompiled PRIVATE abissora_options Qt6::Core)
target_precompile_headers(abissora_precompiled PRIVATE
  <QByteArray> <QDate> <QDateTime> <QList> <QLocale> <QObject> <QString> <QTimeZone> <QUuid>
  <algorithm> <chrono> <functional> <memory> <optional> <utility> <vector>)

function(abissora_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;DEPENDS;LINK" ${ARGN})
  string(TOLOWER "abissora_${name}" target)
  add_library(${target} STATIC ${LAYER_SOURCES})
  add_library(Abissora::${name} ALIAS ${target})
  target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  list(TRANSFORM LAYER_DEPENDS PREPEND "Abissora::")
  target_link_libraries(${target} PUBLIC ${LAYER_DEPENDS} ${LAYER_LINK} PRIVATE abissora_options)
  target_precompile_headers(${target} REUSE_FROM abissora_precompiled)
endfunction()
