# Tests of the catalogue, the gallery program and the style sheets; nothing to test where they are not built.
if(NOT VX_BUILD_GALLERY)
  return()
endif()

vx_test(Gallery/tst_Catalogue.cpp LIBRARIES VxCatalogue)
vx_test(Gallery/tst_RecorderModel.cpp LIBRARIES VxGalleryWindows)
vx_test(Gallery/tst_GalleryWindows.cpp LIBRARIES VxGalleryWindows)
add_dependencies(tst_GalleryWindows VxTranslations)
vx_test(Gallery/tst_RecorderWindow.cpp LIBRARIES VxGalleryWindows)
add_dependencies(tst_RecorderWindow VxTranslations)
vx_test(Gallery/tst_TrimPage.cpp WINDOWS LIBRARIES VxGalleryWindows)
vx_test(Gallery/tst_SignalLog.cpp LIBRARIES VxGalleryWindows)
vx_test(Gallery/tst_Inspector.cpp LIBRARIES VxGalleryWindows)
vx_test(Gallery/tst_LevelBallistics.cpp LIBRARIES VxGalleryWindows)
vx_test(Gallery/tst_RecorderParts.cpp LIBRARIES VxGalleryWindows LABELS threads)

vx_test(Gallery/tst_Styles.cpp LIBRARIES VxCatalogue)
target_compile_definitions(tst_Styles PRIVATE VX_STYLES_SOURCE="${PROJECT_SOURCE_DIR}/Styles")

vx_test(Gallery/tst_Gallery.cpp LIBRARIES VxCatalogue)
add_dependencies(tst_Gallery VxGallery)
target_compile_definitions(tst_Gallery PRIVATE VX_GALLERY="$<TARGET_FILE:VxGallery>")

vx_test(Gallery/tst_Reference.cpp LIBRARIES VxCatalogue)
target_compile_definitions(tst_Reference PRIVATE VX_DOCS="${PROJECT_SOURCE_DIR}/Docs")
