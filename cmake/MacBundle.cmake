# The program as macOS wants it: an application bundle with its Info.plist and icon, and a disk image with the bundle and
# the Qt libraries that it needs.
set(TARNWICK_BUNDLE_ID "example.tarnwick.Tarnwick" CACHE STRING "Identifier of the application bundle")
if(NOT CMAKE_OSX_DEPLOYMENT_TARGET)
  set(CMAKE_OSX_DEPLOYMENT_TARGET 11.0)
endif()

# The icon in the sizes of the system, drawn by the program's own code, as one file.
function(tarnwick_mac_icon output)
  set(theme ${CMAKE_CURRENT_BINARY_DIR}/theme)
  set(iconset ${CMAKE_CURRENT_BINARY_DIR}/Tarnwick.iconset)
  set(copies)
  foreach(pair 16:16x16 32:16x16@2x 32:32x32 64:32x32@2x 128:128x128 256:128x128@2x 256:256x256 512:256x256@2x
               512:512x512 1024:512x512@2x)
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 side)
    list(GET pair 1 name)
    list(APPEND copies COMMAND ${CMAKE_COMMAND} -E copy ${theme}/${side}x${side}/apps/tarnwick.png
                               ${iconset}/icon_${name}.png)
  endforeach()
  add_custom_command(
    OUTPUT ${output}
    COMMAND tarnwick-icons ${theme} 512 1024
    COMMAND ${CMAKE_COMMAND} -E make_directory ${iconset}
    ${copies}
    COMMAND iconutil --convert icns --output ${output} ${iconset}
    DEPENDS tarnwick-icons
    COMMENT "Drawing the application's icon"
    VERBATIM)
endfunction()

function(tarnwick_mac_bundle target)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/Tarnwick.icns)
  tarnwick_mac_icon(${icon})
  target_sources(${target} PRIVATE ${icon})
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(${target} PROPERTIES
    MACOSX_BUNDLE ON
    OUTPUT_NAME Tarnwick
    MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/resources/macos/Info.plist.in
    MACOSX_BUNDLE_BUNDLE_NAME Tarnwick
    MACOSX_BUNDLE_GUI_IDENTIFIER ${TARNWICK_BUNDLE_ID}
    MACOSX_BUNDLE_ICON_FILE Tarnwick.icns
    MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
    MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
    MACOSX_BUNDLE_COPYRIGHT "© 2026 the Tarnwick authors")
endfunction()

# After the bundle is installed: brings the Qt libraries into it, and makes it a disk image by "cpack".
function(tarnwick_mac_package)
  find_program(TARNWICK_MACDEPLOYQT macdeployqt HINTS ${QT6_INSTALL_PREFIX}/bin)
  if(TARNWICK_MACDEPLOYQT)
    install(CODE "execute_process(COMMAND \"${TARNWICK_MACDEPLOYQT}\" \
\"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Tarnwick.app\" COMMAND_ERROR_IS_FATAL ANY)")
  else()
    message(STATUS "No macdeployqt here: the bundle will only run where this Qt is installed")
  endif()
  set(CPACK_GENERATOR DragNDrop)
  set(CPACK_PACKAGE_NAME Tarnwick)
  set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
  set(CPACK_PACKAGE_FILE_NAME Tarnwick-${PROJECT_VERSION})
  include(CPack)
endfunction()
