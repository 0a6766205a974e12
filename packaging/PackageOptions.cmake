# Read by cpack for each kind of package.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
function(install_components)
    foreach(component ${ARGV})
        list(APPEND projects ${build} CorvellanePluginInstaller ${component} /)
    endforeach()
    set(CPACK_INSTALL_CMAKE_PROJECTS ${projects} PARENT_SCOPE)
endfunction()

install_components(Unspecified libraries)
if(CPACK_GENERATOR STREQUAL "DEB")
    install_components(Unspecified desktop)
    set(CPACK_SET_DESTDIR ON)
    set(CPACK_INSTALL_PREFIX /usr/lib/corvellane-installer)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endif()
