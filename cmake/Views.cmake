# What every target of the house shares.

# For what is built here and nobody else gets: the tests, the editor, and the libraries' own sources.
add_library(views_options INTERFACE)
target_include_directories(views_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(views_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
    $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # GCC 12 sees overlaps in concatenated std::strings that are not there

# views_library(NAME PREFIX sources...): a shared library that exports what is marked PREFIX_API and does not link while
# a symbol is missing. Others know it as Views::NAME. Its file bears the project's name, its headers are included as they
# are here: "NAME/...".
function(views_library name prefix)
    add_library(${name} SHARED ${ARGN})
    add_library(Views::${name} ALIAS ${name})
    target_compile_definitions(${name} PRIVATE ${prefix}_EXPORTS)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:${VIEWS_HEADERS}>)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:views_options>)
    target_link_options(${name} PRIVATE $<$<NOT:$<BOOL:${VIEWS_SANITIZE}>>:-Wl,--no-undefined>)
    # Nobody puts functions of his own in the place of a library's, so inside it they are called without detours.
    target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-Bsymbolic-functions>)
    set(file Views${name})
    if(name STREQUAL Views)
        set(file Views)
    endif()
    set_target_properties(${name} PROPERTIES OUTPUT_NAME ${file} INSTALL_RPATH "$ORIGIN"
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endfunction()

# Beside other versions'.
set(VIEWS_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/views-${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
