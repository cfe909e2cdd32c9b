# A layer is one library with an include root of its own: its headers are reached as "<layer>/Name.h",
# and only by targets that link it, so an include against the arrows of docs/architecture.md doesn't build.
#
#   vantrell_layer(<name> [OWN_PCH] SOURCES <file>... [USES <layer>...] [LIBRARIES <imported target>...]
#                  [MOC <header>...])
#
# USES are the arrows to lower layers and pass on with everything below them. LIBRARIES pass on as well,
# since a layer's headers may show their types. The precompiled header
# is the lowest layer's, unless a layer brings its own.
function(vantrell_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "OWN_PCH" "" "SOURCES;USES;LIBRARIES;MOC")
    set(root "${CMAKE_BINARY_DIR}/include/${name}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${name}" SYMBOLIC)

    set(moc_sources "")
    if(layer_MOC)
        qt_wrap_cpp(moc_sources ${layer_MOC})
    endif()
    add_library(vantrell_${name} STATIC ${layer_SOURCES} ${moc_sources})
    target_include_directories(vantrell_${name} PUBLIC "${root}")
    set(uses ${layer_USES})
    list(TRANSFORM uses PREPEND vantrell_)
    target_link_libraries(vantrell_${name} PUBLIC ${uses} ${layer_LIBRARIES} PRIVATE vantrell_options)
    if(NOT layer_OWN_PCH)
        target_precompile_headers(vantrell_${name} REUSE_FROM vantrell_platform)
    endif()
endfunction()
