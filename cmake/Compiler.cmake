# The language level, warnings and sanitizers that every target of ours is built with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC OFF)

add_library(vantrell_options INTERFACE)
# Designated initializers leave out on purpose what has a default. GCC 12 takes "literal" + std::string for an
# overlapping copy when it optimises.
target_compile_options(
    vantrell_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
                               -Woverloaded-virtual -Wno-missing-field-initializers $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                               -Werror
)
# Several sources a compilation, which builds the whole in a quarter of the time. GCC then takes what a coroutine of
# one source keeps in its frame for something that others could see.
option(VANTRELL_UNITY "Compile several sources at a time" ON)
if(VANTRELL_UNITY)
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)
    target_compile_options(vantrell_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
target_compile_definitions(
    vantrell_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                               QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
)
# GCC 12 takes a library's header for ours once it is precompiled, and warns about it when it optimises.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
if(VANTRELL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(VANTRELL_COVERAGE)
    # Threads count as well, so that counts are added up atomically.
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
if(VANTRELL_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(VANTRELL_TIDY)
    # What the build writes by itself isn't ours to be checked. No check at all would be an error.
    file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "Checks: '-*,llvm-twine-local'\n")
    set(CMAKE_CXX_CLANG_TIDY clang-tidy-16 --quiet)
endif()
find_program(VANTRELL_MOLD mold)
if(VANTRELL_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_link_options(-fuse-ld=mold)
endif()
