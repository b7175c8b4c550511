# Provides zlib as VyrZlib. On Windows it is linked statically, so that no further DLL is needed.
if(WIN32)
  find_library(VYR_ZLIB NAMES libz.a REQUIRED)
else()
  find_library(VYR_ZLIB NAMES z REQUIRED)
endif()
add_library(VyrZlib INTERFACE)
target_link_libraries(VyrZlib INTERFACE ${VYR_ZLIB})
