# cmake -D BUILD=FOLDER -D SOURCE=FOLDER -D KIT=FOLDER -P Kit.cmake
#
# Makes the kit that installers are packed from without a compiler: the programs with the libraries they need, and
# without, for packages that name what they depend on; and what a package tells the desktop.

file(REMOVE_RECURSE ${KIT})
foreach(component Unspecified libraries)
    execute_process(
        COMMAND ${CMAKE_COMMAND} --install ${BUILD} --strip --component ${component} --prefix ${KIT}/bundle
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(COPY ${KIT}/bundle/bin/corvellane-installer ${KIT}/bundle/bin/corvellane-command-runner
    DESTINATION ${KIT}/system/bin)
file(COPY ${KIT}/bundle/Resources DESTINATION ${KIT}/system)
# Where the system's libraries are used, no other place is searched for them.
file(RPATH_REMOVE FILE ${KIT}/system/bin/corvellane-installer)

foreach(ending desktop metainfo.xml policy)
    file(COPY ${BUILD}/packaging/com.corvellane.PluginInstaller.${ending} DESTINATION ${KIT}/desktop)
endforeach()
file(COPY ${SOURCE}/packaging/com.corvellane.PluginInstaller.svg DESTINATION ${KIT}/desktop)
file(COPY ${SOURCE}/packaging/copyright ${SOURCE}/packaging/starter DESTINATION ${KIT})

# What the programs need of a Debian system, as its own tools find out.
file(WRITE ${KIT}/debian/control "")
execute_process(
    COMMAND dpkg-shlibdeps -O -esystem/bin/corvellane-installer -esystem/bin/corvellane-command-runner
    WORKING_DIRECTORY ${KIT}
    OUTPUT_VARIABLE found ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^shlibs:Depends=" "" depends "${found}")
file(WRITE ${KIT}/debian/depends "${depends}, pkexec, polkitd, qt6-qpa-plugins")
file(REMOVE ${KIT}/debian/control)
execute_process(COMMAND dpkg --print-architecture OUTPUT_FILE ${KIT}/debian/architecture COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND uname -m OUTPUT_FILE ${KIT}/architecture COMMAND_ERROR_IS_FATAL ANY)
