# SPDX-License-Identifier: MIT
# abissora_compile_together(TARGET) compiles four sources of a target at a time where CMAKE_UNITY_BUILD asks for it: most
# of the time of compiling a test class goes into reading headers. Names in anonymous namespaces must differ among them,
# as the compiler says where they do not.
function(abissora_compile_together target)
  if(abissora_tests_together)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 4)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # A type with a member from an anonymous namespace is taken for one of a header that many include.
      target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    endif()
  endif()
endfunction()

# abissora_test_program(Models CLASSES tst_Equipment tst_Maintenance LINK Abissora::Models)
# builds tests_models from one source per class and gives ctest one test per class. Windows stand on a screen of
# 1920 x 1200.
function(abissora_test_program name)
  cmake_parse_arguments(TESTS "GUI" "" "CLASSES;SOURCES;LINK" ${ARGN})
  string(TOLOWER "tests_${name}" target)
  list(TRANSFORM TESTS_CLASSES APPEND ".cpp" OUTPUT_VARIABLE class_sources)
  add_executable(${target} ${class_sources} ${TESTS_SOURCES})
  if(TESTS_GUI)
    set(main abissora_test_main_gui)
  else()
    set(main abissora_test_main_core)
  endif()
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${target} PRIVATE abissora_options ${main} ${TESTS_LINK} Qt6::Test)
  target_precompile_headers(${target} REUSE_FROM abissora_precompiled)
  abissora_compile_together(${target})
  foreach(class IN LISTS TESTS_CLASSES)
    add_test(NAME ${name}/${class} COMMAND ${target} ${class})
    set_tests_properties(${name}/${class} PROPERTIES ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/Support/screen.json;LC_ALL=C.UTF-8;TZ=Europe/Rome;QT_LOGGING_RULES=;ABISSORA_DATA_DIR=")
  endforeach()
endfunction()
