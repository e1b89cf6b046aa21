# Tests of the recorder, the example application: scenarios through its windows.
if(NOT TARGET VxRecorderWindows)
  return()
endif()

vx_test(Recorder/tst_Recorder.cpp LIBRARIES VxRecorderWindows LABELS threads)
add_dependencies(tst_Recorder VxTranslations)

add_test(NAME recorder-rejects-bad-size COMMAND VxRecorder --size 900)
set_tests_properties(
  recorder-rejects-bad-size
  PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${VX_TEST_ENVIRONMENT}" TIMEOUT 60
             PASS_REGULAR_EXPRESSION "--size takes WIDTHxHEIGHT with sides up to 8192, not '900'")
