# Compiler options that every target of the project shares.
include_guard(GLOBAL)
add_library(kestrel-options INTERFACE)
target_compile_options(kestrel-options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
# GCC 12 sees overlapping copies in std::string where there are none, at -O2 and above only.
target_compile_options(kestrel-options INTERFACE $<$<CONFIG:Release>:-Wno-restrict>)

option(KESTREL_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(KESTREL_SANITIZE)
    target_compile_options(kestrel-options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
    target_link_options(kestrel-options INTERFACE -fsanitize=address,undefined)
endif()

# On in the preset x86_64 alone: in i686 each source has what it includes itself, and one that lacks an include is told of.
option(KESTREL_PRECOMPILE "Windows: read once what nearly every source reads" OFF)

option(KESTREL_FUZZ "Build for clang's fuzzer: its program alone" OFF)
if(KESTREL_FUZZ AND KESTREL_SANITIZE)
    target_compile_options(kestrel-options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(WIN32)
    # One file that needs nothing but the system's own DLLs, and no more of it than is used.
    target_compile_options(kestrel-options INTERFACE -ffunction-sections -fdata-sections)
    # Without the time of linking: the same sources give the same bytes.
    target_link_options(kestrel-options INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp -s)
    # Loaded anywhere, no data run as code, more than 2 GB where the system has them for 64 bits, told as a
    # program that terminal servers need not help. Windows 7 is the oldest that has all that is called.
    target_link_options(kestrel-options INTERFACE
        -Wl,--dynamicbase,--nxcompat,--tsaware
        -Wl,--major-subsystem-version,6,--minor-subsystem-version,1,--major-os-version,6,--minor-os-version,1)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        target_link_options(kestrel-options INTERFACE -Wl,--high-entropy-va)
    endif()
    target_compile_definitions(kestrel-options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
endif()

# The test framework is one header of the host's; a cross compiler does not look there by itself.
find_path(DOCTEST_DIR doctest/doctest.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
configure_file(${DOCTEST_DIR}/doctest/doctest.h ${CMAKE_BINARY_DIR}/include/doctest/doctest.h COPYONLY)
add_library(kestrel-doctest INTERFACE)
target_include_directories(kestrel-doctest SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)
