# How everything in the project is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(ZORS_CCACHE ccache)
if(ZORS_CCACHE)
  # Sloppiness is what ccache asks for before it takes a source with a precompiled header; without the names of
  # folders one clone finds what another has compiled.
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
               CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true ${ZORS_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fpch-preprocess>)
endif()

if(PROJECT_IS_TOP_LEVEL)
  add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror)
endif()

set(ZORS_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")
if(ZORS_SANITIZE)
  add_compile_options(-fsanitize=${ZORS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZORS_SANITIZE})
endif()

option(ZORS_COVERAGE "Count executed lines" OFF)
if(ZORS_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
