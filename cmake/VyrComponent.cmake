# While a folder holds no source yet, its target is built of an empty one.
function(vyr_fill_empty sources_variable)
  if(NOT ${sources_variable})
    set(empty "${CMAKE_BINARY_DIR}/empty.cpp")
    file(CONFIGURE OUTPUT "${empty}" CONTENT "")
    set(${sources_variable} "${empty}" PARENT_SCOPE)
  endif()
endfunction()

# A shared library of the product: every source in its folder, the system's own folder for VyrPlatform.
function(vyr_add_component name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "/linux/[^/]*$")
  else()
    list(FILTER sources EXCLUDE REGEX "/windows/[^/]*$")
  endif()
  vyr_fill_empty(sources)
  add_library(${name} SHARED ${sources})
  target_link_libraries(${name} PRIVATE VyrCompileRules)
  target_include_directories(${name} PUBLIC
    "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>" "$<INSTALL_INTERFACE:include>")
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(WIN32)
    # The DLL carries the component's own name; its import library keeps the usual prefix.
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
endfunction()
