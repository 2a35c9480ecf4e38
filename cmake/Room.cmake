# Sources of a target are compiled in groups (CMAKE_UNITY_BUILD in the presets), which takes a quarter of the time. Those
# named here have names of their own that a neighbour has, too, and stand alone.
function(barquell_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# barquell_room(NAME [QT | GUI] SOURCES file... [LINKS room-or-library...])
# One static library a room; QT adds moc and Qt's core, GUI its widgets too, each with precompiled headers. Rooms with
# windows are compiled for size in a release: nothing there takes time, and all of it is in memory.
function(barquell_room name)
  cmake_parse_arguments(ROOM "QT;GUI" "" "SOURCES;LINKS" ${ARGN})
  add_library(barquell_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(barquell_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(barquell_${name} PUBLIC barquell_flags ${ROOM_LINKS})
  target_compile_options(barquell_${name} PRIVATE ${BARQUELL_COVERAGE})
  # Qt's headers are most of what a compiler reads here; the first room of either kind compiles them for all.
  if(ROOM_QT)
    barquell_precompile(${name} foundation "Qt6::Core" <QObject> <QPointer> <QString> <QStringList> <QVariant> <chrono>
                        <functional> <memory> <optional> <string> <vector>)
  elseif(ROOM_GUI)
    target_compile_options(barquell_${name} PRIVATE $<$<CONFIG:Release>:-Os>)
    barquell_precompile(${name} interface "Qt6::Widgets" <QAction> <QApplication> <QIcon> <QMenu> <QObject> <QPointer>
                        <QString> <QVariant> <QWidget> <chrono> <functional> <memory> <optional> <string> <vector>)
  endif()
endfunction()

function(barquell_precompile name first qt)
  set_target_properties(barquell_${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(barquell_${name} PUBLIC ${qt})
  if(name STREQUAL first)
    target_precompile_headers(barquell_${name} PRIVATE ${ARGN})
  elseif(TARGET barquell_${first})
    target_precompile_headers(barquell_${name} REUSE_FROM barquell_${first})
  endif()
endfunction()
