# Tests of the recorder, the example application: scenarios through its windows.
if(NOT TARGET VxRecorderWindows)
  return()
endif()

vx_test(Recorder/tst_Recorder.cpp LIBRARIES VxRecorderWindows LABELS threads)
add_dependencies(tst_Recorder VxTranslations)
