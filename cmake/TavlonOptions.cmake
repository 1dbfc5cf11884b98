# What every target of the tree is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(TAVLON_WERROR "Treat warnings as errors" OFF)
option(TAVLON_BENCHMARKS "Build the benchmarks" OFF)
set(TAVLON_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# All programs and libraries land in one place, so that a Windows program finds its DLLs.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# Text crosses every interface as code page 936 bytes, so narrow literals are compiled to them. A target with the
# property TAVLON_PLAIN_TEXT has no such literals and may include <chrono>, whose own do not exist in that code page.
set(TAVLON_GBK_OPTIONS -finput-charset=UTF-8 -fexec-charset=GBK)

add_library(tavlon_options INTERFACE)
target_compile_options(tavlon_options INTERFACE
                       "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:TAVLON_PLAIN_TEXT>>>:${TAVLON_GBK_OPTIONS}>"
                       -Wall -Wextra -Wshadow $<$<BOOL:${TAVLON_WERROR}>:-Werror>
                       -Wno-restrict)  # GCC 12 sees overlaps in std::string that are not there
if(WIN32)
  # Hosts need them as well, as the public headers include <windows.h>: the interfaces of Windows 7, and no macros over
  # std::min and std::max.
  set(TAVLON_WINDOWS_DEFINITIONS WINVER=0x0601 _WIN32_WINNT=0x0601 NOMINMAX)
  set(TAVLON_WINDOWS_LIBRARIES user32 gdi32 msimg32 comctl32)
  target_compile_definitions(tavlon_options INTERFACE ${TAVLON_WINDOWS_DEFINITIONS} WIN32_LEAN_AND_MEAN)
  # Exceptions and allocations cross the DLLs, so all of them share one run-time; it lies beside the programs.
  foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    configure_file(${path} ${CMAKE_BINARY_DIR}/bin/${library} COPYONLY)
    list(APPEND TAVLON_RUNTIME_DLLS ${CMAKE_BINARY_DIR}/bin/${library})
  endforeach()
else()
  target_link_options(tavlon_options INTERFACE -Wl,--no-undefined)
endif()
if(TAVLON_SANITIZE)
  target_compile_options(tavlon_options INTERFACE -fsanitize=${TAVLON_SANITIZE} -fno-sanitize-recover=all
                         -fno-omit-frame-pointer)
  target_link_options(tavlon_options INTERFACE -fsanitize=${TAVLON_SANITIZE})
endif()
