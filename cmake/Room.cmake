# barquell_room(NAME [QT] SOURCES file... [LINKS room-or-library...])
# One static library a room; QT adds moc and the precompiled Qt headers.
function(barquell_room name)
  cmake_parse_arguments(ROOM "QT" "" "SOURCES;LINKS" ${ARGN})
  add_library(barquell_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(barquell_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(barquell_${name} PUBLIC barquell_flags ${ROOM_LINKS})
  if(ROOM_QT)
    set_target_properties(barquell_${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(barquell_${name} PUBLIC Qt6::Core)
    # Qt's headers are most of what a compiler reads here; the first room compiles them for all.
    if(TARGET barquell_foundation AND NOT name STREQUAL foundation)
      target_precompile_headers(barquell_${name} REUSE_FROM barquell_foundation)
    elseif(name STREQUAL foundation)
      target_precompile_headers(barquell_foundation PRIVATE <QObject> <QPointer> <QString> <QStringList> <QVariant>
                                <chrono> <functional> <memory> <optional> <string> <vector>)
    endif()
  endif()
endfunction()
