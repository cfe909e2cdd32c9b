# A layer is one library. What it shows to others lies in its include/<layer>/ and is reached as "<layer>/Name.h",
# only by targets that link it, so an include against the arrows of docs/architecture.md doesn't build. Its other
# headers lie beside its sources and are reached by their bare names, by the layer alone. A layer without such a
# folder shows all its headers: those at the top of the house, which nothing builds upon.
#
#   vantrell_layer(<name> [OWN_PCH] SOURCES <file>... [USES <layer>...] [LIBRARIES <imported target>...]
#                  [INSIDE <imported target>...] [MOC <header>...])
#
# USES are the arrows to lower layers and pass on with everything below them. LIBRARIES pass on as well,
# since the headers shown name their types; those INSIDE don't. The precompiled header
# is the lowest layer's, unless a layer brings its own.
function(vantrell_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "OWN_PCH" "" "SOURCES;USES;LIBRARIES;INSIDE;MOC")
    set(shown "${CMAKE_CURRENT_SOURCE_DIR}/include")
    if(NOT IS_DIRECTORY "${shown}")
        set(shown "${CMAKE_BINARY_DIR}/include/${name}")
        file(MAKE_DIRECTORY "${shown}")
        file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${shown}/${name}" SYMBOLIC)
    endif()

    set(moc_sources "")
    if(layer_MOC)
        qt_wrap_cpp(moc_sources ${layer_MOC})
    endif()
    add_library(vantrell_${name} STATIC ${layer_SOURCES} ${moc_sources})
    target_include_directories(vantrell_${name} PUBLIC "${shown}")
    set(uses ${layer_USES})
    list(TRANSFORM uses PREPEND vantrell_)
    target_link_libraries(
        vantrell_${name} PUBLIC ${uses} ${layer_LIBRARIES} PRIVATE ${layer_INSIDE} vantrell_options
    )
    if(NOT layer_OWN_PCH)
        target_precompile_headers(vantrell_${name} REUSE_FROM vantrell_base)
    endif()
endfunction()
