# What every target of this project shares.

add_library(kestrom_options INTERFACE)
target_compile_options(kestrom_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> # GCC 12 sees overlaps in "text" + std::string() that are not there
  $<$<CXX_COMPILER_ID:Clang>:-Wno-bitwise-instead-of-logical>) # meant: no branches in a loop over pixels
target_compile_definitions(kestrom_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  KESTROM_VERSION="${PROJECT_VERSION}")
if(KESTROM_SANITIZE)
  target_compile_options(kestrom_options INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestrom_options INTERFACE -fsanitize=address,undefined)
endif()
if(KESTROM_FUZZ)
  target_compile_options(kestrom_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# kestrom_library(NAME SOURCES ... LINKS ...): a static library whose folder is its include path.
function(kestrom_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE kestrom_options)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

# kestrom_test(NAME SOURCES ... LINKS ... [GUI]): a GoogleTest program known to CTest.
function(kestrom_test name)
  cmake_parse_arguments(ARG "GUI" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>) # what is tested has its own
  if(ARG_GUI)
    target_link_libraries(${name} PRIVATE kestrom_test_main_gui)
  else()
    target_link_libraries(${name} PRIVATE kestrom_test_main)
  endif()
  target_link_libraries(${name} PRIVATE kestrom_options ${ARG_LINKS} GTest::gtest GTest::gmock)
  file(CONFIGURE OUTPUT ${name}_paths.cpp @ONLY CONTENT [[
#include "test_paths.h"
std::string source_file(std::string_view path) { return std::string("@PROJECT_SOURCE_DIR@/").append(path); }
std::string test_data(std::string_view name) { return std::string("@CMAKE_CURRENT_SOURCE_DIR@/data/").append(name); }
]])
  target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}_paths.cpp)
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
