# barquell_bundle(TARGET): makes the program an application bundle, Barquell.app, with its icon, its scripting dictionary
# and the login helper. To be called where the target is made.
function(barquell_bundle target)
  set(packaging ${PROJECT_SOURCE_DIR}/packaging)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/Barquell.icns)
  set(drawing ${packaging}/icon/com.vexolith.barquell.svg)
  add_custom_command(OUTPUT ${icon} COMMAND barquell-icon ${drawing} ${icon} DEPENDS barquell-icon ${drawing} VERBATIM)
  set(resources ${packaging}/macos/Barquell.sdef ${icon})
  target_sources(${target} PRIVATE ${resources})
  set_source_files_properties(${resources} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(${target} PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST ${packaging}/macos/Info.plist.in
    OUTPUT_NAME Barquell)

  add_executable(BarquellLauncher MACOSX_BUNDLE ${packaging}/macos/launcher/main.mm)
  set_target_properties(BarquellLauncher PROPERTIES
    MACOSX_BUNDLE_INFO_PLIST ${packaging}/macos/launcher/Info.plist.in)
  target_compile_options(BarquellLauncher PRIVATE -fobjc-arc)
  target_link_libraries(BarquellLauncher PRIVATE barquell_flags "-framework AppKit")
  # The copy below is made when the program is linked: a new helper has it linked again.
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS
    $<TARGET_FILE:BarquellLauncher> ${packaging}/macos/launcher/Info.plist.in)
  add_dependencies(${target} BarquellLauncher)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_directory $<TARGET_BUNDLE_DIR:BarquellLauncher>
            $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Library/LoginItems/BarquellLauncher.app)
endfunction()
