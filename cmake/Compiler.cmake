# How every target is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# With its paths taken from here on, ccache shares what it knows between build folders and checkouts: the headless
# build and a clean clone find most of theirs there.
find_program(TARNWICK_CCACHE ccache)
if(TARNWICK_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
                                  ${TARNWICK_CCACHE})
endif()

add_library(tarnwick_options INTERFACE)
target_compile_options(tarnwick_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
target_compile_definitions(tarnwick_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                      QT_NO_URL_CAST_FROM_STRING TARNWICK_VERSION="${PROJECT_VERSION}")
if(TARNWICK_WERROR)
  target_compile_options(tarnwick_options INTERFACE -Werror)
endif()
if(TARNWICK_SANITIZE)
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()

# tarnwick_library(NAME files...): one layer of the program as a static library, its include root is src/.
function(tarnwick_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PRIVATE tarnwick_options)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()
