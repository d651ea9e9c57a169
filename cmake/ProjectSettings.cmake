# What every target of the project is compiled with, and the one way to declare a room.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(ProjectSettings INTERFACE)
target_compile_options(ProjectSettings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
target_compile_definitions(ProjectSettings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(TAVELO_SANITIZE)
  target_compile_options(ProjectSettings INTERFACE
    -fsanitize=${TAVELO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ProjectSettings INTERFACE -fsanitize=${TAVELO_SANITIZE})
  if(TAVELO_SANITIZE STREQUAL thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # The library's headers hold a memory fence, which this sanitizer cannot see and GCC warns of.
    target_compile_options(ProjectSettings INTERFACE -Wno-tsan)
  endif()
endif()

# A room is a folder of TaveloDeskrig/ and one static library. It sees the headers of the rooms that it names in USES, and
# of those that they use; a higher room's headers are not on its include path, so that an arrow can only point down.
#
#   add_room(Catalog SOURCES AppItem.h Catalog.cpp … USES Platform)
function(add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;USES")
  add_library(${name} STATIC ${room_SOURCES})
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC Qt6::Core ${room_USES} PRIVATE ProjectSettings)
endfunction()

# The code that a QML module generates is compiled as it comes, without the project's warnings, and sixteen of its files at
# a time: each is short and begins with the same long headers, which are most of the work.
function(compile_generated_as_it_comes target)
  get_target_property(sources ${target} SOURCES)
  set(written ${sources})
  list(FILTER written EXCLUDE REGEX "/qmlcache/")
  set_source_files_properties(${written} PROPERTIES SKIP_UNITY_BUILD_INCLUSION TRUE)
  set_target_properties(${target} PROPERTIES UNITY_BUILD TRUE UNITY_BUILD_BATCH_SIZE 16)
  if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    set(silence "#pragma clang diagnostic ignored \"-Weverything\"")
  else()
    # What the generator's code sets off of the warnings above; GCC has no pragma for all of them.
    set(silence "")
    foreach(warning conversion pedantic shadow unused-parameter unused-variable)
      string(APPEND silence "#pragma GCC diagnostic ignored \"-W${warning}\"\n")
    endforeach()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_CODE_BEFORE_INCLUDE "${silence}")
  list(FILTER sources INCLUDE REGEX "_qmltyperegistrations|/qmlcache/.*_loader")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
endfunction()
