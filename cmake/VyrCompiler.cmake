# The compiler's options for all targets.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# All programs and libraries of a build go into one folder, where Windows finds the DLLs.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_package(Threads REQUIRED)

# Every target links to this: warnings as errors, the root as include folder.
add_library(VyrCompileRules INTERFACE)
target_include_directories(VyrCompileRules INTERFACE "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>")
target_compile_options(VyrCompileRules INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wcast-qual -Wformat=2
  -Wundef "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual>" -Wnull-dereference
  "$<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond;-Wlogical-op>")
target_compile_definitions(VyrCompileRules INTERFACE "$<$<BOOL:${WIN32}>:UNICODE;_UNICODE;NOMINMAX;WIN32_LEAN_AND_MEAN;_WIN32_WINNT=0x0A00>")

if(VYR_SANITIZE)
  add_compile_options(-fsanitize=${VYR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # Only the fuzz targets get libFuzzer's main.
  string(REPLACE "fuzzer-no-link," "" link_sanitizers "${VYR_SANITIZE}")
  add_link_options(-fsanitize=${link_sanitizers})
endif()

if(WIN32)
  # Exceptions cross the DLLs, so the run-time libraries are shared and stand beside the programs.
  foreach(runtime libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
      OUTPUT_VARIABLE runtime_path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT EXISTS "${runtime_path}")
      set(runtime_path "/usr/x86_64-w64-mingw32/lib/${runtime}")
    endif()
    file(COPY "${runtime_path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    list(APPEND VYR_RUNTIME_DLLS "${runtime_path}")
  endforeach()
endif()

# Header-only libraries that a cross-build may use too. /usr/include itself must never be on its path, so the build tree
# gets a link to the one folder.
function(vyr_header_only_library target folder)
  add_library(${target} INTERFACE)
  set(view "${CMAKE_BINARY_DIR}/header-only/${target}")
  file(MAKE_DIRECTORY "${view}")
  file(CREATE_LINK "/usr/include/${folder}" "${view}/${folder}" SYMBOLIC)
  target_include_directories(${target} SYSTEM INTERFACE "${view}")
endfunction()
