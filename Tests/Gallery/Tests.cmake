# Tests of the gallery.
if(NOT TARGET VxGallery)
  return()
endif()

vx_test(Gallery/tst_GalleryWindows.cpp LIBRARIES VxGalleryWindows)
add_dependencies(tst_GalleryWindows VxTranslations)

vx_test(Gallery/tst_Palette.cpp LIBRARIES VxGalleryWindows)

vx_test(Gallery/tst_Gallery.cpp LIBRARIES VxCatalogue)
add_dependencies(tst_Gallery VxGallery)
target_compile_definitions(tst_Gallery PRIVATE VX_GALLERY="$<TARGET_FILE:VxGallery>"
                                               VX_STYLES="${PROJECT_SOURCE_DIR}/Styles")
