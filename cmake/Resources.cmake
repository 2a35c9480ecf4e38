# What panels and window managers ask for.
set(BARQUELL_DRAWN_SIZES 16 22 24 32 44 48 64 128)

# barquell_resource_library(NAME QRC file.qrc STRINGS catalogue.ts... DRAWN picture.svg...)
# What a program brings along, compiled in; the catalogues become ":/strings/NAME.qm", the pictures ":/images/NAME/SIZE"
# (see packaging/icon). A program that links it has it all from its start, directly or through a library.
function(barquell_resource_library name)
  cmake_parse_arguments(RESOURCES "" "QRC" "STRINGS;DRAWN" ${ARGN})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name})
  file(MAKE_DIRECTORY ${folder}/strings)
  set(made)
  set(entries)
  foreach(source ${RESOURCES_STRINGS})
    get_filename_component(catalogue ${source} NAME_WE)
    set(compiled ${folder}/strings/${catalogue}.qm)
    add_custom_command(OUTPUT ${compiled}
      COMMAND Qt6::lrelease -silent ${CMAKE_CURRENT_SOURCE_DIR}/${source} -qm ${compiled}
      DEPENDS ${source} VERBATIM)
    list(APPEND made ${compiled})
    string(APPEND entries "<file>strings/${catalogue}.qm</file>")
  endforeach()
  foreach(source ${RESOURCES_DRAWN})
    get_filename_component(source ${source} ABSOLUTE)
    get_filename_component(picture ${source} NAME_WLE)
    file(MAKE_DIRECTORY ${folder}/images/${picture})
    foreach(size ${BARQUELL_DRAWN_SIZES})
      set(drawn images/${picture}/${size})
      add_custom_command(OUTPUT ${folder}/${drawn}
        COMMAND barquell-icon ${source} ${size} ${folder}/${drawn}
        DEPENDS ${source} VERBATIM)
      list(APPEND made ${folder}/${drawn})
      string(APPEND entries "<file>${drawn}</file>")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${folder}/made.qrc CONTENT "<RCC><qresource prefix=\"/\">@entries@</qresource></RCC>" @ONLY)

  set(files ${folder}/made.qrc)
  if(RESOURCES_QRC)
    list(APPEND files ${CMAKE_CURRENT_SOURCE_DIR}/${RESOURCES_QRC})
  endif()
  add_custom_command(OUTPUT ${folder}/resources.cpp
    COMMAND Qt6::rcc --compress-algo zlib --name ${name} --output ${folder}/resources.cpp --depfile ${folder}/resources.d ${files}
    DEPENDS ${files} ${made} DEPFILE ${folder}/resources.d VERBATIM)
  # Objects and no archive: a linker drops from an archive what nobody calls, and nobody calls resources.
  add_library(${name}_objects OBJECT ${folder}/resources.cpp)
  target_link_libraries(${name}_objects PRIVATE Qt6::Core)
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE $<TARGET_OBJECTS:${name}_objects>)
endfunction()
