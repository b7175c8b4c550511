# Provides PCRE2's library for UTF-16 as VyrPcre2. On Windows it is linked statically, from what
# scripts/build-windows-libraries has built.
add_library(VyrPcre2 INTERFACE)
if(WIN32)
  set(VYR_WINDOWS_LIBRARIES "${PROJECT_SOURCE_DIR}/build/windows-libraries" CACHE PATH "What scripts/build-windows-libraries has built")
  target_include_directories(VyrPcre2 SYSTEM INTERFACE "${VYR_WINDOWS_LIBRARIES}/include")
  target_link_libraries(VyrPcre2 INTERFACE "${VYR_WINDOWS_LIBRARIES}/lib/libpcre2-16.a")
  target_compile_definitions(VyrPcre2 INTERFACE PCRE2_STATIC)
else()
  find_library(VYR_PCRE2 pcre2-16 REQUIRED)
  target_link_libraries(VyrPcre2 INTERFACE ${VYR_PCRE2})
endif()
