# Tests over every widget of the catalogue; nothing to test where it is not built.
if(NOT VX_BUILD_GALLERY)
  return()
endif()

vx_test(Catalogue/tst_Environment.cpp LIBRARIES VxCatalogue)
foreach(scale 1.25 2)
  add_test(NAME tst_Environment_scaled_${scale} COMMAND tst_Environment)
  set_tests_properties(
    tst_Environment_scaled_${scale}
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale};QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough;\
${VX_TEST_ENVIRONMENT}" TIMEOUT 300)
endforeach()

vx_test(Catalogue/tst_Properties.cpp LIBRARIES VxGalleryWindows)

vx_test(Catalogue/tst_CatalogueChanges.cpp SOURCES Catalogue/Look.cpp LIBRARIES VxGalleryWindows)
add_dependencies(tst_CatalogueChanges VxTranslations)
target_compile_definitions(tst_CatalogueChanges PRIVATE VX_TRANSLATIONS="${CMAKE_BINARY_DIR}/Translations")

# Only the platform can turn accessibility on, and Qt's headers for that are private.
find_package(Qt5 5.15 REQUIRED COMPONENTS Gui)
vx_test(Catalogue/tst_CatalogueAccessibility.cpp SOURCES Catalogue/Hearing.cpp LIBRARIES VxCatalogue)
if(TARGET Qt5::GuiPrivate)
  target_link_libraries(tst_CatalogueAccessibility PRIVATE Qt5::GuiPrivate)
  target_compile_definitions(tst_CatalogueAccessibility PRIVATE VX_WITH_QT_PRIVATE)
endif()
vx_test(Catalogue/tst_CatalogueRandomEvents.cpp SOURCES Catalogue/RandomEvents.cpp LIBRARIES VxCatalogue)
vx_test(Catalogue/tst_CatalogueLifetime.cpp LIBRARIES VxCatalogue)
