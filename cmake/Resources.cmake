# barquell_resource_library(NAME QRC file.qrc STRINGS catalogue.ts...)
# What a program brings along, compiled in; the catalogues become ":/strings/NAME.qm". A program that links it has it
# all from its start, directly or through a library.
function(barquell_resource_library name)
  cmake_parse_arguments(RESOURCES "" "QRC" "STRINGS" ${ARGN})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name})
  file(MAKE_DIRECTORY ${folder}/strings)
  set(catalogues)
  set(entries)
  foreach(source ${RESOURCES_STRINGS})
    get_filename_component(catalogue ${source} NAME_WE)
    set(compiled ${folder}/strings/${catalogue}.qm)
    add_custom_command(OUTPUT ${compiled}
      COMMAND Qt6::lrelease -silent ${CMAKE_CURRENT_SOURCE_DIR}/${source} -qm ${compiled}
      DEPENDS ${source} VERBATIM)
    list(APPEND catalogues ${compiled})
    string(APPEND entries "<file>strings/${catalogue}.qm</file>")
  endforeach()
  file(CONFIGURE OUTPUT ${folder}/strings.qrc CONTENT "<RCC><qresource prefix=\"/\">@entries@</qresource></RCC>" @ONLY)

  set(files ${folder}/strings.qrc)
  if(RESOURCES_QRC)
    list(APPEND files ${CMAKE_CURRENT_SOURCE_DIR}/${RESOURCES_QRC})
  endif()
  add_custom_command(OUTPUT ${folder}/resources.cpp
    COMMAND Qt6::rcc --name ${name} --output ${folder}/resources.cpp --depfile ${folder}/resources.d ${files}
    DEPENDS ${files} ${catalogues} DEPFILE ${folder}/resources.d VERBATIM)
  # Objects and no archive: a linker drops from an archive what nobody calls, and nobody calls resources.
  add_library(${name}_objects OBJECT ${folder}/resources.cpp)
  target_link_libraries(${name}_objects PRIVATE Qt6::Core)
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE $<TARGET_OBJECTS:${name}_objects>)
endfunction()
