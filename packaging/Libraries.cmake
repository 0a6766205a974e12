# Beside the executable, what it needs beyond a desktop's own libraries: Qt, its platform plugins and what these bring
# along, each with its licence. Run at installation, for the folder to unpack only: a Debian package names what it
# depends on instead.

set(bundle "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
# Windows are drawn in memory, and a desktop without a graphics driver will do. The integration of EGL is there for the
# frames of windows: where a desktop with Wayland leaves these to the programs, Qt 6.4 draws them only if it has an
# integration that shares its buffers, whether windows use it or not.
set(plugins
    platforms/libqoffscreen.so
    platforms/libqwayland-generic.so
    platforms/libqxcb.so
    wayland-decoration-client/libbradient.so
    wayland-graphics-integration-client/libqt-plugin-wayland-egl.so
    wayland-shell-integration/libxdg-shell.so)
set(pluginFiles ${plugins})
list(TRANSFORM pluginFiles PREPEND ${qtPlugins}/)

# The C and C++ libraries, fonts, D-Bus, and what talks to the display and its drivers are the machine's own. Two small
# libraries of Wayland's are not on every desktop.
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES ${bundle}/bin/corvellane-installer
    MODULES ${pluginFiles}
    RESOLVED_DEPENDENCIES_VAR libraries
    PRE_INCLUDE_REGEXES ^libQt6 ^libicu ^libxcb- ^libxkbcommon
        "^lib(b2|double-conversion|gomp|md4c|OpenGL|pcre2-16|png16|wayland-cursor|wayland-egl)[.]"
    PRE_EXCLUDE_REGEXES .)

# Qt's core asks for ICU when texts are sorted by a language's rules, read from old character sets, or time zones called
# by name. The window does none of this, so that ICU's data, half of all libraries, would never be read. What stands in
# its place has no entries, in the form of ICU's own stub
# (https://unicode-org.github.io/icu/userguide/icu_data/#stub-data).
function(install_without_data data)
    file(REAL_PATH ${data} real)
    get_filename_component(name ${real} NAME)
    get_filename_component(soname ${data} NAME)
    string(REGEX REPLACE "^libicudata[.]so[.]([0-9]+)$" "icudt\\1_dat" symbol ${soname})
    file(WRITE ${bundle}/data.s "
        .section .note.GNU-stack, \"\", %progbits
        .section .rodata
        .globl ${symbol}
        .type ${symbol}, %object
        .balign 16
        ${symbol}:
        .short 32 /* the header's bytes */
        .byte 0xda, 0x27
        .short 20, 0 /* of which the information's */
        .byte ${isBigEndian}, 0, 2, 0 /* byte order, ASCII, bytes of a character */
        .ascii \"CmnD\"
        .byte 1, 0, 0, 0, 0, 0, 0, 0 /* versions */
        .space 8
        .long 0, 0, 0, 0 /* no entries */
        .size ${symbol}, . - ${symbol}
    ")
    execute_process(
        COMMAND ${compiler} -shared -s -nostdlib -Wl,-soname,${soname} -o ${bundle}/lib/${name} ${bundle}/data.s
        COMMAND_ERROR_IS_FATAL ANY)
    file(CHMOD ${bundle}/lib/${name} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(REMOVE ${bundle}/data.s)
    file(CREATE_LINK ${name} ${bundle}/lib/${soname} SYMBOLIC)
endfunction()

foreach(library ${libraries})
    if(library MATCHES "/libicudata[.]")
        install_without_data(${library})
    else()
        file(INSTALL ${library} DESTINATION ${bundle}/lib FOLLOW_SYMLINK_CHAIN)
    endif()
endforeach()
foreach(plugin ${plugins})
    cmake_path(GET plugin PARENT_PATH kind)
    file(INSTALL ${qtPlugins}/${plugin} DESTINATION ${bundle}/plugins/${kind})
endforeach()
file(WRITE ${bundle}/bin/qt.conf "[Paths]\nPrefix = ..\nPlugins = plugins\n")

# This one is linked in.
file(INSTALL /usr/share/doc/libutf8proc-dev/copyright DESTINATION ${bundle}/licenses RENAME libutf8proc-dev)
list(TRANSFORM libraries REPLACE "^.*/" "*/")
execute_process(COMMAND dpkg-query --search ${libraries}
    OUTPUT_VARIABLE owners
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" owners "${owners}")
list(TRANSFORM owners REPLACE ":.*" "")
list(REMOVE_DUPLICATES owners)
foreach(package ${owners})
    file(REAL_PATH /usr/share/doc/${package}/copyright license)
    file(INSTALL ${license} DESTINATION ${bundle}/licenses RENAME ${package})
endforeach()
