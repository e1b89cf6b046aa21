# Tests of the catalogue, of the style sheets, and of all widgets in the catalogue.
if(NOT TARGET VxGalleryWindows)
  return()
endif()

vx_test(Catalogue/tst_Styles.cpp LIBRARIES VxCatalogue)
target_compile_definitions(tst_Styles PRIVATE VX_STYLES_SOURCE="${PROJECT_SOURCE_DIR}/Styles")
vx_test(Catalogue/tst_Contrast.cpp SOURCES Catalogue/Legibility.cpp Catalogue/Legibility.h LIBRARIES VxCatalogue)
# Writes the contrasts that the test measures to Docs/Contrast.md.
add_custom_target(
  contrast-table
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen VX_CONTRAST_TABLE=${PROJECT_SOURCE_DIR}/Docs/Contrast.md
          $<TARGET_FILE:tst_Contrast> -silent
  VERBATIM)
vx_test(Catalogue/tst_Reference.cpp LIBRARIES VxCatalogue)
target_compile_definitions(tst_Reference PRIVATE VX_DOCS="${PROJECT_SOURCE_DIR}/Docs")

vx_test(Catalogue/tst_Environment.cpp LIBRARIES VxCatalogue)
foreach(scale 1.25 2)
  add_test(NAME tst_Environment_scaled_${scale} COMMAND tst_Environment)
  set_tests_properties(
    tst_Environment_scaled_${scale}
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale};QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough;\
${VX_TEST_ENVIRONMENT}" TIMEOUT 300)
endforeach()

vx_test(Catalogue/tst_Properties.cpp LIBRARIES VxGalleryWindows)

vx_test(Catalogue/tst_CatalogueChanges.cpp LIBRARIES VxGalleryWindows)
add_dependencies(tst_CatalogueChanges VxTranslations)
target_compile_definitions(tst_CatalogueChanges PRIVATE VX_TRANSLATIONS="${CMAKE_BINARY_DIR}/Translations")

# Only the platform plugin can activate accessibility; the headers for that are private.
find_package(Qt${VX_QT_VERSION} REQUIRED COMPONENTS Gui)
vx_test(Catalogue/tst_CatalogueAccessibility.cpp LIBRARIES VxCatalogue)
if(TARGET Qt${VX_QT_VERSION}::GuiPrivate)
  target_link_libraries(tst_CatalogueAccessibility PRIVATE Qt${VX_QT_VERSION}::GuiPrivate)
  target_compile_definitions(tst_CatalogueAccessibility PRIVATE VX_WITH_QT_PRIVATE)
endif()

# Forms with all widgets and states, compiled by uic, and the code of the states. VxFormWriter writes them at build time.
add_executable(VxFormWriter Catalogue/FormWriter.cpp ${PROJECT_SOURCE_DIR}/Designer/FormXml.cpp)
vx_target(VxFormWriter)
target_link_libraries(VxFormWriter PRIVATE VxCatalogue)
set(form ${CMAKE_CURRENT_BINARY_DIR}/FormOfAll)
set(form_headers ${form}/ui_FormOfAll.h ${form}/ui_FormOfStates.h)
add_custom_command(
  OUTPUT ${form_headers} ${form}/Samples.cpp
  COMMAND ${CMAKE_COMMAND} -E make_directory ${form}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${VX_TEST_ENVIRONMENT} ${CMAKE_CROSSCOMPILING_EMULATOR}
          $<TARGET_FILE:VxFormWriter> ${form}
  COMMAND Qt${VX_QT_VERSION}::uic -o ${form}/ui_FormOfAll.h ${form}/FormOfAll.ui
  COMMAND Qt${VX_QT_VERSION}::uic -o ${form}/ui_FormOfStates.h ${form}/FormOfStates.ui
  DEPENDS VxFormWriter VERBATIM)
vx_test(Catalogue/tst_CatalogueParents.cpp SOURCES ${form}/ui_FormOfAll.h LIBRARIES VxGalleryWindows)
target_include_directories(tst_CatalogueParents SYSTEM PRIVATE ${form})

vx_test(Catalogue/tst_SampleCode.cpp SOURCES ${form}/Samples.cpp ${form_headers} LIBRARIES VxCatalogue)
set_source_files_properties(${form_headers} ${form}/Samples.cpp PROPERTIES SKIP_AUTOGEN ON)
# Some samples only construct their widget.
if(NOT MSVC)
  set_source_files_properties(${form}/Samples.cpp PROPERTIES COMPILE_OPTIONS -Wno-unused-variable)
endif()
target_include_directories(tst_SampleCode SYSTEM PRIVATE ${form})

vx_test(Catalogue/tst_PlainLook.cpp LIBRARIES VxCatalogue)
vx_test(Catalogue/tst_CatalogueRandomEvents.cpp LIBRARIES VxCatalogue)
vx_test(Catalogue/tst_CatalogueLifetime.cpp LIBRARIES VxCatalogue)
vx_test(Catalogue/tst_HostileApplication.cpp LIBRARIES VxCatalogue)

# They take minutes with a sanitizer or on a busy machine.
set_tests_properties(tst_CatalogueChanges tst_CatalogueParents tst_CatalogueAccessibility tst_CatalogueLifetime
                     tst_CatalogueRandomEvents tst_HostileApplication PROPERTIES TIMEOUT 900)

# Generates the pages of all widgets and runs Doxygen, whose warnings are errors.
if(TARGET widget-pages AND TARGET docs AND NOT VX_SANITIZE AND VX_QT_VERSION EQUAL 5)
  add_test(NAME docs COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target docs)
  set_tests_properties(docs PROPERTIES TIMEOUT 300)
endif()
