# These programs read hostile bytes: what the compiler and the loader can do to turn a mistake of ours into an end
# instead of a way in. tests/packaging/hardened.sh reads from the binaries whether it is there.

# Containers check their indices, in builds with a sanitizer too.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

# Programs lie at an address drawn at each start. Nobody replaces our functions at load time, so that position
# independence need not keep them from being inlined.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fno-semantic-interposition)

# The sanitizers have their own, stricter ways.
if(UNIX AND NOT APPLE AND NOT VANTOR_SANITIZE)
    add_compile_options(-fstack-protector-strong -fstack-clash-protection)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        add_compile_options(-fcf-protection=full)
    elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
        add_compile_options(-mbranch-protection=standard)
    endif()
    # Needs an optimizing compiler.
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>)
    # Addresses of library functions are looked up at the start and not writable after it.
    add_link_options(-Wl,-z,relro,-z,now)
endif()
