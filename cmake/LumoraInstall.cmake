# What `cmake --install` puts where. The export is the whole CMake package: the library depends on
# nothing, so there is nothing to look for before it.
include(CMakePackageConfigHelpers)
set(LUMORA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Lumora)

install(TARGETS lumora EXPORT Lumora
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/lumora)
install(EXPORT Lumora NAMESPACE Lumora:: FILE LumoraConfig.cmake DESTINATION ${LUMORA_CMAKE_DIR})
write_basic_package_version_file(LumoraConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/LumoraConfigVersion.cmake
        DESTINATION ${LUMORA_CMAKE_DIR})
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(LUMORA_BUILD_CLI)
  install(TARGETS lumora_cli)
  install(FILES packaging/lumora.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES packaging/lumora.bash-completion
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME lumora)
endif()
