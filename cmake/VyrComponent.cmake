# The sources below FOLDER into the variable RESULT, without those that stand in a folder of the other system.
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

# A shared library of the product, which others find as Vyr::EXPORT_NAME: every source in its folder. PUBLIC_HEADERS are patterns; what they match is installed, in the same folders.
function(vyr_add_component name)
  cmake_parse_arguments(component "" "EXPORT_NAME" "PUBLIC_HEADERS" ${ARGN})
  vyr_find_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
  file(GLOB headers CONFIGURE_DEPENDS ${component_PUBLIC_HEADERS})
  # A public header that serves one system alone tells so by its name.
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
  # A library that holds symbols of GNU's unique kind stays in the process for ever; a host may unload ours.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  set_target_properties(${name} PROPERTIES
    EXPORT_NAME ${component_EXPORT_NAME} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(WIN32)
    # The DLL carries the component's own name; its import library keeps the usual prefix.
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
endfunction()
