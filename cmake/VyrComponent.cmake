# Sets RESULT to the sources below FOLDER, without those in a folder of the other system.
function(vyr_find_sources result folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp")
  if(WIN32)
    set(other_system linux)
  else()
    set(other_system windows)
  endif()
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH place "${folder}" "${source}")
    if(NOT "/${place}" MATCHES "/${other_system}/")
      list(APPEND kept "${source}")
    endif()
  endforeach()
  set(${result} ${kept} PARENT_SCOPE)
endfunction()

# Adds a shared library of the product, Vyr::EXPORT_NAME for others, from all sources in its folder. Headers that match the
# patterns PUBLIC_HEADERS are installed in the same folders, except the PRIVATE_HEADERS.
function(vyr_add_component name)
  cmake_parse_arguments(component "" "EXPORT_NAME" "PUBLIC_HEADERS;PRIVATE_HEADERS" ${ARGN})
  vyr_find_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
  file(GLOB headers CONFIGURE_DEPENDS ${component_PUBLIC_HEADERS})
  foreach(header IN LISTS component_PRIVATE_HEADERS)
    list(REMOVE_ITEM headers "${CMAKE_CURRENT_SOURCE_DIR}/${header}")
  endforeach()
  # The name of a public header for one system begins with the system.
  if(WIN32)
    list(FILTER headers EXCLUDE REGEX "/Linux[^/]*$")
  else()
    list(FILTER headers EXCLUDE REGEX "/Windows[^/]*$")
  endif()

  add_library(${name} SHARED ${sources})
  add_library(Vyr::${component_EXPORT_NAME} ALIAS ${name})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
  target_link_libraries(${name} PRIVATE VyrCompileRules)
  target_compile_features(${name} PUBLIC cxx_std_20)
  # A library with GNU's unique symbols never leaves the process; a host may unload ours.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  set_target_properties(${name} PROPERTIES
    EXPORT_NAME ${component_EXPORT_NAME} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(WIN32)
    # The DLL has the component's own name; its import library keeps the usual prefix.
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
endfunction()
