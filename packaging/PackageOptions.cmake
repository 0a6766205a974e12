# Read by cpack for each kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
    list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        ${build} CorvellanePluginInstaller Unspecified / ${build} CorvellanePluginInstaller desktop /)
    set(CPACK_SET_DESTDIR ON)
    set(CPACK_INSTALL_PREFIX /usr/lib/corvellane-installer)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endif()
