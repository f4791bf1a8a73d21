# Settings and the few functions that all targets of the project share.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
    # The sloppiness lets precompiled headers be cached; -fpch-preprocess below belongs to it. Paths count from
    # the source folder, so that clones and work trees share what one of them has compiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

add_library(orvane_settings INTERFACE)
target_compile_options(orvane_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(orvane_settings INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(orvane_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    ORVANE_VERSION="${PROJECT_VERSION}")
target_include_directories(orvane_settings INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(ORVANE_SANITIZE)
    target_compile_options(orvane_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvane_settings INTERFACE -fsanitize=address,undefined)
endif()
if(ORVANE_FUZZ)
    target_compile_options(orvane_settings INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(orvane_settings INTERFACE -fsanitize=address,undefined)
endif()

# orvane_library(NAME SOURCES ... LINK ...): a static library of one room of the house.
function(orvane_library name)
    cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC orvane_settings ${arg_LINK})
    if(arg_WIDGETS)
        target_precompile_headers(${name} PRIVATE <QtWidgets> <memory> <optional> <vector>)
    endif()
endfunction()

# orvane_subsystem(NAME LOGIC ... FORMS ...): two targets. NAME_logic knows no widget and can not include one;
# NAME adds the forms.
function(orvane_subsystem name)
    cmake_parse_arguments(arg "" "" "LOGIC;FORMS" ${ARGN})
    orvane_library(${name}_logic SOURCES ${arg_LOGIC} LINK core_logic)
    orvane_library(${name} WIDGETS SOURCES ${arg_FORMS} LINK ${name}_logic core)
endfunction()

# orvane_test(SOURCE LINK ...): one Qt Test program from one source file, run offscreen.
function(orvane_test source)
    cmake_parse_arguments(arg "WIDGETS" "" "LINK" ${ARGN})
    get_filename_component(stem ${source} NAME_WE)
    get_filename_component(room ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    set(name test_${room}_${stem})
    add_executable(${name} ${source})
    target_link_libraries(${name} PRIVATE test_support Qt6::Test ${arg_LINK})
    if(arg_WIDGETS)
        target_precompile_headers(${name} REUSE_FROM test_headers)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${room}/${stem} COMMAND ${name})
    set_tests_properties(${room}/${stem} PROPERTIES
        TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=orvane.sql=false;ASAN_OPTIONS=detect_leaks=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
