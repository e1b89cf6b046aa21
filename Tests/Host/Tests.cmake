vx_test(Host/tst_VideoFrame.cpp)
vx_test(Host/tst_HostUtilities.cpp)

vx_test(Host/tst_CaptureEngine.cpp LABELS threads)
vx_test(Host/tst_Devices.cpp LABELS threads)

if(VX_WITH_GSTREAMER AND VX_GSTREAMER_FOUND)
  vx_test(Host/tst_ScreenDevice.cpp WINDOWS)
  # The host does not export these sources, so the test compiles them.
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(VX_TEST_GSTREAMER REQUIRED IMPORTED_TARGET gstreamer-1.0 gstreamer-video-1.0)
  set(host_gstreamer ${PROJECT_SOURCE_DIR}/Host/StandIn/GStreamer)
  vx_test(Host/tst_GStreamerSource.cpp LIBRARIES PkgConfig::VX_TEST_GSTREAMER
          SOURCES ${host_gstreamer}/CameraModes.cpp ${host_gstreamer}/GStreamerFrames.cpp
                  ${host_gstreamer}/MicrophoneLevel.cpp)
  target_include_directories(tst_GStreamerSource PRIVATE ${PROJECT_SOURCE_DIR}/Host)
endif()
