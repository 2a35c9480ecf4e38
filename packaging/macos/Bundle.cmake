# The application bundle with its login helper; `target` is the program.
function(barquell_bundle target)
  set_target_properties(${target} PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in
    OUTPUT_NAME Barquell)
  set(resources ${PROJECT_SOURCE_DIR}/packaging/macos/Barquell.sdef ${PROJECT_SOURCE_DIR}/packaging/macos/Barquell.icns)
  foreach(resource IN LISTS resources)
    if(EXISTS ${resource})
      target_sources(${target} PRIVATE ${resource})
      set_source_files_properties(${resource} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    endif()
  endforeach()

  add_executable(BarquellLauncher MACOSX_BUNDLE ${PROJECT_SOURCE_DIR}/packaging/macos/launcher/main.mm)
  set_target_properties(BarquellLauncher PROPERTIES
    MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/launcher/Info.plist.in)
  target_compile_options(BarquellLauncher PRIVATE -fobjc-arc)
  target_link_libraries(BarquellLauncher PRIVATE "-framework AppKit")
  add_dependencies(${target} BarquellLauncher)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_directory $<TARGET_BUNDLE_DIR:BarquellLauncher>
            $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Library/LoginItems/BarquellLauncher.app)
endfunction()
