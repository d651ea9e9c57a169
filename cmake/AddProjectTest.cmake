# add_project_test(CommandRunnerTest SOURCES CommandRunnerTest.cpp USES Backend)
#
# One executable and one CTest entry of the same name. Every test gets the helpers of tests/support.
# The timeout ends what hangs; the longest test takes two minutes on an idle machine, and many times that on a busy one.
function(add_project_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;USES")
  add_executable(${name} ${test_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE TestSupport ${test_USES} ProjectSettings)
  add_test(NAME ${name} COMMAND ${name})
  set(environment QT_QPA_PLATFORM=offscreen QTEST_FUNCTION_TIMEOUT=1400000) # in ms; the library's own is five minutes
  if(TAVELO_SANITIZE STREQUAL thread)
    # A test starts threads after it has started processes, which is safe: a child executes another program at once.
    set(options "die_after_fork=0:suppressions=${PROJECT_SOURCE_DIR}/tests/sanitizers/thread.supp")
    if("RunningCloud" IN_LIST test_USES)
      # Requests pass through a thread of Qt's own, which hands its data over under locks that cannot be seen, since the
      # library is not instrumented. What our own code does is still watched.
      string(APPEND options ":ignore_noninstrumented_modules=1")
    endif()
    list(APPEND environment "TSAN_OPTIONS=${options}")
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT 1500 ENVIRONMENT "${environment}")
endfunction()
