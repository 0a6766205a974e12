# Checks who includes whom: cmake -D ROOT=<source folder> -P IncludeWalls.cmake
#
# A folder may include itself, the folders listed for it, and headers of libraries. Qt stays at the edges.

cmake_minimum_required(VERSION 3.25)

set(folders base platform platform/script platform/posix platform/linux platform/qt platform/osascript products install
    rtf agreement state view view/qt ui app helper tools)

set(may_include_base "")
set(may_include_platform base)
set(may_include_platform/script base platform)
set(may_include_platform/posix base platform)
set(may_include_platform/linux base platform platform/script platform/posix helper)
set(may_include_platform/qt base platform platform/script)
set(may_include_platform/osascript base platform platform/posix)
set(may_include_products base platform)
set(may_include_install base platform products)
set(may_include_rtf base)
set(may_include_agreement base platform rtf)
set(may_include_state base platform products install)
set(may_include_view base rtf/AttributedText.h)
set(may_include_view/qt base view rtf/AttributedText.h)
set(may_include_ui base products agreement state view)
set(may_include_app ${folders})
set(may_include_helper "")
set(may_include_tools ${folders})

set(may_use_qt platform/qt view/qt app tools)

function(check file folder)
    file(STRINGS ${ROOT}/${file} lines REGEX "^#include")
    foreach(line IN LISTS lines)
        if(line MATCHES "^#include \"((.*)/[^/]*)\"")
            if(NOT CMAKE_MATCH_2 STREQUAL folder AND NOT CMAKE_MATCH_1 IN_LIST may_include_${folder}
                AND NOT CMAKE_MATCH_2 IN_LIST may_include_${folder})
                message(SEND_ERROR "${file} must not include ${CMAKE_MATCH_1}")
            endif()
        elseif(line MATCHES "^#include \"")
            message(SEND_ERROR "${file}: write includes from the source folder on: ${line}")
        elseif(line MATCHES "^#include <Q" AND NOT folder IN_LIST may_use_qt)
            message(SEND_ERROR "${file} must not use Qt")
        endif()
    endforeach()
endfunction()

foreach(folder IN LISTS folders)
    file(GLOB files RELATIVE ${ROOT} ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
    foreach(file IN LISTS files)
        check(${file} ${folder})
    endforeach()
endforeach()
