# SPDX-License-Identifier: MIT
# Lets this system's toolkit pass for one of Windows in a build folder that is only configured: shared libraries have
# an import library there.
function(abissora_pretend_import_libraries)
  get_property(targets DIRECTORY "${CMAKE_SOURCE_DIR}" PROPERTY IMPORTED_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
      get_target_property(configurations ${target} IMPORTED_CONFIGURATIONS)
      foreach(configuration IN LISTS configurations)
        set_target_properties(${target} PROPERTIES IMPORTED_IMPLIB_${configuration} "${target}.lib")
      endforeach()
      set_target_properties(${target} PROPERTIES IMPORTED_IMPLIB "${target}.lib")
    endif()
  endforeach()
endfunction()
cmake_language(DEFER CALL abissora_pretend_import_libraries)
