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
file(COPY ${KIT}/bundle/bin ${KIT}/bundle/Resources DESTINATION ${KIT}/system PATTERN qt.conf EXCLUDE)
# Where the system's libraries are used, no other place is searched for them.
file(GLOB programs ${KIT}/system/bin/*)
foreach(program ${programs})
    file(RPATH_REMOVE FILE ${program})
endforeach()

foreach(ending desktop metainfo.xml policy)
    file(COPY ${BUILD}/packaging/com.corvellane.PluginInstaller.${ending} DESTINATION ${KIT}/desktop)
endforeach()
file(COPY ${SOURCE}/packaging/com.corvellane.PluginInstaller.svg ${SOURCE}/packaging/man/corvellane-cli.1 DESTINATION ${KIT}/desktop)
file(COPY ${SOURCE}/packaging/copyright ${SOURCE}/packaging/starter DESTINATION ${KIT})

# What the programs need of a Debian system.
include(${CMAKE_CURRENT_LIST_DIR}/Debian.cmake)
debian_depends(depends ${programs})
list(JOIN depends ", " depends)
file(WRITE ${KIT}/debian/depends "${depends}, pkexec, polkitd, qt6-qpa-plugins")
execute_process(COMMAND dpkg --print-architecture OUTPUT_FILE ${KIT}/debian/architecture COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND uname -m OUTPUT_FILE ${KIT}/architecture COMMAND_ERROR_IS_FATAL ANY)
