# What packages of Debian need of its own tools.

function(need_program name package)
    find_program(found ${name} NO_CACHE)
    if(NOT found)
        message(FATAL_ERROR "The program ${name} is missing: install the package ${package}.")
    endif()
endfunction()

# debian_depends(RESULT [OPTION...] FILE...): a list of the packages whose libraries the programs and libraries are linked
# with, each with its least version; with options of dpkg-shlibdeps.
function(debian_depends result)
    need_program(dpkg-shlibdeps dpkg-dev)
    list(TRANSFORM ARGN PREPEND -e REGEX "^/")
    execute_process(COMMAND mktemp -d OUTPUT_VARIABLE scratch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(WRITE ${scratch}/debian/control "")
    execute_process(
        COMMAND dpkg-shlibdeps -O ${ARGN}
        WORKING_DIRECTORY ${scratch}
        OUTPUT_VARIABLE found ERROR_VARIABLE problems OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
    file(REMOVE_RECURSE ${scratch})
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${problems}")
    endif()
    string(REGEX REPLACE "^shlibs:Depends=" "" found "${found}")
    string(REPLACE ", " ";" found "${found}")
    set(${result} "${found}" PARENT_SCOPE)
endfunction()
