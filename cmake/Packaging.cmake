# `cmake --install` puts the bundle into a folder, `cpack` into a file to hand out: on a Mac a disk image from which it is
# dragged to Applications, elsewhere an archive of the same layout, which needs the build's packages to run.
set(TAVELO_SIGNING_IDENTITY - CACHE STRING "Who signs the bundle on a Mac: a Developer ID, or - for nobody")

install(DIRECTORY "${CMAKE_BINARY_DIR}/TaveloDeskrig.app" DESTINATION . USE_SOURCE_PERMISSIONS)
if(APPLE)
  find_program(MACDEPLOYQT macdeployqt HINTS "${QT6_INSTALL_PREFIX}/bin")
  if(TAVELO_SIGNING_IDENTITY STREQUAL "-")
    set(signing -codesign=-)
  else()
    set(signing "-sign-for-notarization=${TAVELO_SIGNING_IDENTITY}")
  endif()
  # The libraries go into the bundle, and it is signed. The tool may end well in spite of errors, hence the check.
  install(CODE "
    set(bundle \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/TaveloDeskrig.app\")
    execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND [[${MACDEPLOYQT}]] \"\${bundle}\"
      [[-qmldir=${PROJECT_SOURCE_DIR}/TaveloDeskrig/Views]] [[${signing}]])
    execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND codesign --verify --deep --strict \"\${bundle}\")")
  set(CPACK_GENERATOR DragNDrop)
  set(CPACK_DMG_VOLUME_NAME "Tavelo Deskrig")
else()
  set(CPACK_GENERATOR TGZ)
endif()
set(CPACK_PACKAGE_FILE_NAME "TaveloDeskrig-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
