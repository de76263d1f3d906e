# Writes TESTS, a file for CTest with one test for each suite of PROGRAM, named PREFIX and the suite,
# with LABELS.
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed
  RESULT_VARIABLE status TIMEOUT 60)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} cannot list its tests: ${status}")
endif()
# A suite stands at the beginning of its line and ends with a point; a type may follow.
string(REGEX MATCHALL "\n[^ \n]+\\." suites "\n${listed}")
set(text "")
foreach(suite ${suites})
  string(STRIP "${suite}" suite)
  string(APPEND text "add_test([==[${PREFIX}${suite}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}*]==])\n"
         "set_tests_properties([==[${PREFIX}${suite}]==] PROPERTIES TIMEOUT 300 LABELS [==[${LABELS}]==])\n")
endforeach()
file(WRITE ${TESTS} "${text}")
