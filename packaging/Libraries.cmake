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

file(INSTALL ${libraries} DESTINATION ${bundle}/lib FOLLOW_SYMLINK_CHAIN)
foreach(plugin ${plugins})
    cmake_path(GET plugin PARENT_PATH kind)
    file(INSTALL ${qtPlugins}/${plugin} DESTINATION ${bundle}/plugins/${kind})
endforeach()
file(WRITE ${bundle}/bin/qt.conf "[Paths]\nPrefix = ..\nPlugins = plugins\n")

# This one is linked in.
file(INSTALL /usr/share/doc/libutf8proc-dev/copyright DESTINATION ${bundle}/licenses RENAME libutf8proc-dev)
foreach(library ${libraries})
    get_filename_component(name ${library} NAME)
    execute_process(COMMAND dpkg-query --search */${name}
        OUTPUT_VARIABLE owner
        COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ":.*" "" package ${owner})
    file(REAL_PATH /usr/share/doc/${package}/copyright license)
    file(INSTALL ${license} DESTINATION ${bundle}/licenses RENAME ${package})
endforeach()
