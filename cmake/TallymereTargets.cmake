# Settings that every target of the project shares, and the layer check.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# The compiler cache takes a call with a precompiled header only when it is told that the macros and times in that do
# not matter, and when the compiler leaves a mark of the header in what it preprocesses. Paths count from the source
# folder, so that another checkout finds what the first has compiled.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}
        CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
    add_compile_options(-fpch-preprocess)
endif()

option(TALLYMERE_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
if(TALLYMERE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
endif()

# Compiles nothing that anybody runs: the linker sees all types of a program at once and stops at two of one name.
option(TALLYMERE_ODR "Look for violations of the one-definition rule" OFF)
if(TALLYMERE_ODR)
    add_compile_options(-flto)
    # What the optimizer says of the sizes in others' containers is not looked for, and wrong.
    add_link_options(-flto=auto -Wodr -Wlto-type-mismatch -Werror -Wno-alloc-size-larger-than)
endif()

add_library(tallymere_options INTERFACE)
target_include_directories(tallymere_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(tallymere_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    TALLYMERE_VERSION="${PROJECT_VERSION}")
target_compile_options(tallymere_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion
    -Werror)

# Line numbers for a backtrace, but no variables: the debug build has those.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1 -DNDEBUG")

# scripts/unused asks the linker which functions nothing calls.
add_compile_options($<$<CONFIG:Debug>:-ffunction-sections>)

# Resources without the times of their files, for qt_add_resources: the same sources give the same bytes.
set(timeless OPTIONS --format-version 1)

# Precompiled headers are made once for all rooms without widgets, once for all with, and likewise for the tests of
# both. tallymere_headers(NAME LINK ... HEADERS ...) makes one; what takes it is compiled with the same options.
set(core_headers <algorithm> <functional> <memory> <optional> <utility> <vector>
    <QByteArray> <QCoreApplication> <QDate> <QDateTime> <QHash> <QList> <QObject> <QString> <QStringList>)
set(screen_headers ${core_headers} <QAction> <QApplication> <QDialog> <QKeyEvent> <QLabel> <QLineEdit> <QPushButton>
    <QTableView> <QWidget>)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/headers.cpp CONTENT "// Only its precompiled header counts.\n")
function(tallymere_headers name)
    cmake_parse_arguments(PCH "" "" "LINK;HEADERS" ${ARGN})
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/headers.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_link_libraries(${name} PRIVATE tallymere_options ${PCH_LINK})
    target_precompile_headers(${name} PRIVATE ${PCH_HEADERS})
endfunction()
tallymere_headers(tallymere_core_headers LINK Qt6::Core HEADERS ${core_headers})
tallymere_headers(tallymere_screen_headers LINK Qt6::Widgets HEADERS ${screen_headers})

# A wrong include stops the build: the script knows which room may include which.
add_custom_target(layers ALL
    COMMAND ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayers.cmake
    COMMENT "Checking that the includes between the rooms point one way" VERBATIM)

# tallymere_room(NAME [SCREENS | PAINTS] SOURCES ... LINK ...): one static library of the project. A room that paints
# but has no widgets takes neither precompiled header.
function(tallymere_room name)
    cmake_parse_arguments(ROOM "SCREENS;PAINTS" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC tallymere_options ${ROOM_LINK})
    add_dependencies(${name} layers)
    if(ROOM_SCREENS)
        target_precompile_headers(${name} REUSE_FROM tallymere_screen_headers)
    elseif(NOT ROOM_PAINTS)
        target_precompile_headers(${name} REUSE_FROM tallymere_core_headers)
    endif()
endfunction()
