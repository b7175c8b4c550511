# What is installed, for whom, and the packages that are made of it.
include(CMakePackageConfigHelpers)

# The components "program", "libraries" and "development" are everything, and a package each on Debian. The component "vyr"
# is the program with the libraries that it needs, for a user who installs it alone.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/VyrLibrary")
if(NOT WIN32)
  # The installed files may be moved together: each finds its libraries from where it stands itself.
  set_target_properties(vyr PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(VyrPlatform VyrLibraryUtils VyrLibraryFuncs VyrC PROPERTIES INSTALL_RPATH "$ORIGIN")

  set(manual "${CMAKE_BINARY_DIR}/vyr.1.gz")
  add_custom_command(OUTPUT "${manual}"
    COMMAND gzip -9nc "${PROJECT_SOURCE_DIR}/docs/vyr.1" > "${manual}" DEPENDS docs/vyr.1)
  add_custom_target(VyrManual ALL DEPENDS "${manual}")
endif()

# vyr_install_program(COMPONENT [EXCLUDE_FROM_ALL]): the program and what it reads.
function(vyr_install_program)
  install(TARGETS vyr RUNTIME COMPONENT ${ARGV})
  if(WIN32)
    install(FILES VyrHost/reports/designs.xml DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${ARGV})
    return()
  endif()
  install(FILES VyrHost/reports/designs.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/vyrlibrary" COMPONENT ${ARGV})
  install(FILES "${manual}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT ${ARGV})
  install(FILES docs/vyr.bash
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME vyr COMPONENT ${ARGV})
  install(FILES docs/vyr.fish DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT ${ARGV})
  install(FILES docs/_vyr DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" COMPONENT ${ARGV})
endfunction()
vyr_install_program(program)
vyr_install_program(vyr EXCLUDE_FROM_ALL)

set(component_libraries VyrPlatform VyrLibraryUtils VyrLibraryFuncs)
install(TARGETS ${component_libraries} EXPORT VyrLibraryTargets
  RUNTIME COMPONENT libraries
  LIBRARY COMPONENT libraries NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development)
install(TARGETS ${component_libraries}
  RUNTIME COMPONENT vyr EXCLUDE_FROM_ALL
  LIBRARY COMPONENT vyr EXCLUDE_FROM_ALL NAMELINK_SKIP)
# The library for C with its one header, and programs that use the libraries.
install(TARGETS VyrC EXPORT VyrLibraryTargets
  RUNTIME COMPONENT libraries
  LIBRARY COMPONENT libraries NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development)
install(FILES VyrC/vyr.h DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
set(documents "${CMAKE_INSTALL_DATADIR}/doc/libvyrlibrary-dev")
install(FILES docs/c-interface.md DESTINATION "${documents}")
install(DIRECTORY samples/PreviewHost DESTINATION "${documents}/examples")
install(FILES samples/rename_pictures.py samples/RenamePictures.cs VyrC/csharp/Vyr.cs DESTINATION "${documents}/examples")
install(EXPORT VyrLibraryTargets NAMESPACE Vyr:: DESTINATION "${package_folder}")
configure_package_config_file(cmake/VyrLibraryConfig.cmake.in "${CMAKE_BINARY_DIR}/VyrLibraryConfig.cmake"
  INSTALL_DESTINATION "${package_folder}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/VyrLibraryConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_BINARY_DIR}/VyrLibraryConfig.cmake" "${CMAKE_BINARY_DIR}/VyrLibraryConfigVersion.cmake"
  cmake/VyrVersionInfo.cmake
  DESTINATION "${package_folder}")

# pkg-config's files, which name no folder that installing elsewhere would make wrong.
file(RELATIVE_PATH pkg_config_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" pkg_config_to_prefix "${pkg_config_to_prefix}")
function(vyr_install_pkg_config name description library requires)
  configure_file(cmake/pkg-config.pc.in "${CMAKE_BINARY_DIR}/${name}.pc" @ONLY)
  install(FILES "${CMAKE_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()
vyr_install_pkg_config(vyr-platform "The platform class library and the system's services" VyrPlatform "")
vyr_install_pkg_config(vyr-utils "Paths, files, texts, dates and pictures" VyrLibraryUtils vyr-platform)
vyr_install_pkg_config(vyr-funcs "Bulk renaming and editing of file metadata" VyrLibraryFuncs vyr-utils)
vyr_install_pkg_config(vyr-c "VyrLibrary's operations for C" VyrLibraryC "")

if(WIN32)
  install(FILES LICENSE DESTINATION .)
  # From this other compilers' tools make an import library.
  install(FILES VyrC/vyr.def DESTINATION "${CMAKE_INSTALL_LIBDIR}" RENAME VyrLibraryC.def)
  # The compiler's run-time DLLs, and the terms of all that is not this project's own and is in the package.
  install(FILES ${VYR_RUNTIME_DLLS} DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(FILES licences/README.txt /usr/share/common-licenses/GPL-3 DESTINATION licences)
  foreach(package gcc-mingw-w64-x86-64-posix-runtime mingw-w64-common libboost-dev libcli11-dev libpcre2-dev libtag1-dev libutfcpp-dev
      libz-mingw-w64-dev)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION licences RENAME "${package}.txt")
  endforeach()
else()
  # The name under which Debian looks for a package's terms.
  set(program_package vyr)
  set(libraries_package libvyrlibrary${PROJECT_VERSION_MAJOR})
  set(development_package libvyrlibrary-dev)
  foreach(part program libraries development)
    install(FILES LICENSE
      DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${${part}_package}" RENAME copyright COMPONENT ${part})
  endforeach()
endif()

set(CPACK_PACKAGE_NAME vyrlibrary)
set(CPACK_PACKAGE_VENDOR "The VyrLibrary developers")
set(CPACK_PACKAGE_CONTACT "The VyrLibrary developers <vyrlibrary@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME "VyrLibrary-${PROJECT_VERSION}-windows-x86_64")
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_GROUPING IGNORE)
  set(CPACK_COMPONENTS_ALL program libraries development)
  set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
  set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "${PROJECT_DESCRIPTION}")
  set(CPACK_COMPONENT_LIBRARIES_DESCRIPTION "The libraries behind vyr, for C++, C and other languages")
  set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers and samples of VyrLibrary")
  set(CPACK_COMPONENT_PROGRAM_DEPENDS libraries)
  set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS libraries)
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME ${program_package})
  set(CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME ${libraries_package})
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
  set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SECTION libs)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
  # The zones of --time-zone.
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS tzdata)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endif()
include(CPack)
