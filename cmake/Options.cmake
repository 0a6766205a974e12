# What every target of the project is compiled with; a folder adds its target through corvellane_library().

add_library(corvellane-options INTERFACE)
target_compile_features(corvellane-options INTERFACE cxx_std_20)
target_include_directories(corvellane-options INTERFACE ${PROJECT_SOURCE_DIR})
# Qt's own keywords are macros, and one of them is a name of ours.
target_compile_definitions(corvellane-options INTERFACE QT_NO_KEYWORDS)
target_compile_options(corvellane-options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

# Where the project is worked on; a newer compiler that finds more does not keep anybody from building what is shipped.
option(CORVELLANE_WARNINGS_AS_ERRORS "Let a warning end the build" OFF)
if(CORVELLANE_WARNINGS_AS_ERRORS)
    target_compile_options(corvellane-options INTERFACE -Werror)
endif()

# What nothing uses is left out.
if(LINUX)
    target_compile_options(corvellane-options INTERFACE
        $<$<CONFIG:Release>:-ffunction-sections> $<$<CONFIG:Release>:-fdata-sections>)
    target_link_options(corvellane-options INTERFACE $<$<CONFIG:Release>:LINKER:--gc-sections>)
endif()

option(CORVELLANE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(CORVELLANE_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_compile_options(corvellane-options INTERFACE ${sanitizers} -fsanitize=fuzzer-no-link -fno-omit-frame-pointer)
    target_link_options(corvellane-options INTERFACE ${sanitizers})
endif()

# Hardened by compiler and linker, whatever the compiler's own defaults are. The sanitizers have checks of their own.
include(CheckCXXCompilerFlag)
if(NOT CORVELLANE_SANITIZE)
    target_compile_options(corvellane-options INTERFACE
        -fstack-protector-strong $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    check_cxx_compiler_flag(-fcf-protection hasControlFlowProtection)
    if(hasControlFlowProtection)
        target_compile_options(corvellane-options INTERFACE -fcf-protection)
    endif()
    if(LINUX)
        # Loaded anywhere, and without copies of Qt's own data, which Qt would not know: also where the linker compiles.
        # None of its functions is replaced by another library's: they may be built into their callers.
        target_compile_options(corvellane-options INTERFACE -fPIC -fno-semantic-interposition)
        target_link_options(corvellane-options INTERFACE
            -fPIC -pie LINKER:-z,relro LINKER:-z,now $<$<BOOL:${hasControlFlowProtection}>:LINKER:-z,shstk>)
    endif()
endif()

# corvellane_library(NAME [LOOPS] SOURCES file... LINKS target...): a folder's target, header-only when it has no
# sources. Released, the program is optimised to be small, as all of it is loaded at every start; LOOPS is for what works
# through long texts, lists or trees, and is optimised for speed.
function(corvellane_library name)
    cmake_parse_arguments(arg "LOOPS" "" "SOURCES;LINKS" ${ARGN})
    if(arg_SOURCES)
        add_library(${name} STATIC ${arg_SOURCES})
        target_link_libraries(${name} PUBLIC corvellane-options ${arg_LINKS})
        if(NOT arg_LOOPS)
            target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-Os>)
        endif()
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE corvellane-options ${arg_LINKS})
    endif()
endfunction()

# corvellane_test(NAME SOURCES file... LINKS target...): a GoogleTest program and the ctest that runs it.
function(corvellane_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name}-tests ${arg_SOURCES})
    target_link_libraries(${name}-tests PRIVATE corvellane-options ${arg_LINKS} GTest::gmock GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${name}-tests)
endfunction()

# corvellane_fuzzer(NAME SOURCES file... LINKS target... ARGUMENTS argument...): a libFuzzer program and a short
# run of it as a ctest; only where the sanitizers and with them libFuzzer are switched on.
function(corvellane_fuzzer name)
    if(NOT CORVELLANE_SANITIZE)
        return()
    endif()
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS;ARGUMENTS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE corvellane-options ${arg_LINKS})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    add_test(NAME ${name} COMMAND ${name} ${arg_ARGUMENTS})
endfunction()
