# One test for each suite of a GoogleTest program, found when the program has been built. A process
# for every single case would cost more than the cases do.

# lumora_discover_suites(PROGRAM PREFIX [LABEL])
function(lumora_discover_suites program prefix)
  set(tests ${CMAKE_CURRENT_BINARY_DIR}/${program}_suites.cmake)
  set(label ${ARGN})
  set(missing ${prefix}${program}_NOT_BUILT)
  if(NOT EXISTS ${tests})
    file(WRITE ${tests} "add_test(${missing} ${program}_NOT_BUILT)\n"
                        "set_tests_properties(${missing} PROPERTIES LABELS \"${label}\")\n")
  endif()
  add_custom_command(TARGET ${program} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${program}> -D PREFIX=${prefix}
            -D TESTS=${tests} -D LABELS=${label} -P ${PROJECT_SOURCE_DIR}/cmake/ListSuites.cmake
    BYPRODUCTS ${tests} VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${tests})
endfunction()
