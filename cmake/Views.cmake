# What every target of the house shares.

add_library(views_options INTERFACE)
target_include_directories(views_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(views_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # GCC 12 sees overlaps in concatenated std::strings that are not there

# views_library(NAME PREFIX sources...): a shared library that exports what is marked PREFIX_API
# and does not link while a symbol is missing.
function(views_library name prefix)
    add_library(${name} SHARED ${ARGN})
    target_compile_definitions(${name} PRIVATE ${prefix}_EXPORTS)
    target_link_libraries(${name} PUBLIC views_options)
    target_link_options(${name} PRIVATE $<$<NOT:$<BOOL:${VIEWS_SANITIZE}>>:-Wl,--no-undefined>)
    # Nobody puts functions of his own in the place of a library's, so inside it they are called without detours.
    target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-Bsymbolic-functions>)
endfunction()
