# Read by ctest before it runs: makes one test of each suite of a program of tests, named as the suite. A suite
# shares a process, since starting one under the sanitizers takes longer than most tests.
#   CMAKE  its path; PROGRAMA  the program; CARPETA  the prefix of the names; ENTORNO  variables NAME=value
execute_process(
    COMMAND "${CMAKE}" -E env ${ENTORNO} "${PROGRAMA}" --gtest_list_tests
    OUTPUT_VARIABLE lista
    ERROR_QUIET
    RESULT_VARIABLE codigo)
if(NOT codigo EQUAL 0)
    # One test that fails, rather than tests that are silently missing.
    add_test("${CARPETA}/lista" "${PROGRAMA}" --gtest_list_tests)
endif()
string(REGEX MATCHALL "(^|\n)[^ \n]+\\.[ \n]" suites "${lista}")
foreach(suite ${suites})
    string(REGEX REPLACE "[ \n]" "" suite "${suite}")
    string(REGEX REPLACE "\\.$" "" nombre "${suite}")
    add_test("${CARPETA}/${nombre}" "${PROGRAMA}" "--gtest_filter=${suite}*" --gtest_brief=1)
    set_tests_properties("${CARPETA}/${nombre}" PROPERTIES TIMEOUT 300 ENVIRONMENT "${ENTORNO}")
endforeach()
