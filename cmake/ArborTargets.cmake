# The functions every folder builds with. They carry all flags; no folder sets one of its own.
include(GenerateExportHeader)
include(GoogleTest)
include(GNUInstallDirs)

# Where QML modules are installed, each in the folder of its name: an import path.
set(ARBOR_QML_DIR ${CMAKE_INSTALL_LIBDIR}/qt6/qml)

# Flags of the project's own code; a project that embeds the libraries never sees them.
function(arbor_flags target)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
  if(ARBOR_DEVELOPER)
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
      -Wformat=2 -Wimplicit-fallthrough -Wundef -Werror)
  endif()
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()

# arbor_library(<name> DEPENDS PUBLIC <targets>... [PRIVATE <targets>...])
# A shared library libK7_<name>.so, alias K7::<name>, hidden visibility, export header <name>_export.h.
function(arbor_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS")
  add_library(${name} SHARED)
  add_library(K7::${name} ALIAS ${name})
  set_target_properties(${name} PROPERTIES
    OUTPUT_NAME K7_${name}
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH $ORIGIN
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_options(${name} PRIVATE $<$<NOT:$<BOOL:${ARBOR_INSTRUMENTED}>>:-Wl,--no-undefined>)
  target_link_libraries(${name} ${arg_DEPENDS})
  arbor_flags(${name})
  generate_export_header(${name} EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${name}_export.h)
  target_sources(${name} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}
    FILE_SET generated TYPE HEADERS BASE_DIRS ${PROJECT_BINARY_DIR}/include
    FILES ${PROJECT_BINARY_DIR}/include/${name}_export.h)
  install(TARGETS ${name} EXPORT K7ArborTargets
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/K7_arbor_qml_support
    FILE_SET generated DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/K7_arbor_qml_support)
endfunction()

# arbor_install_qml_plugin(<library>)
# Installs what an engine and tools need to import the QML module of <library> by a path: the plug-in, which loads the
# library, and the list of types.
function(arbor_install_qml_plugin name)
  get_target_property(plugin ${name} QT_QML_MODULE_PLUGIN_TARGET)
  get_target_property(module ${name} QT_QML_MODULE_TARGET_PATH)
  get_target_property(output ${name} QT_QML_MODULE_OUTPUT_DIRECTORY)
  get_target_property(types ${name} QT_QML_MODULE_TYPEINFO)
  set(folder ${ARBOR_QML_DIR}/${module})
  file(RELATIVE_PATH up /${folder} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(${plugin} PROPERTIES INSTALL_RPATH $ORIGIN/${up})
  install(TARGETS ${plugin} LIBRARY DESTINATION ${folder})
  install(FILES ${output}/qmldir ${output}/${types} DESTINATION ${folder})
endfunction()

# arbor_sources(<target> <class>... [HEADERS <name>...] [SOURCES <name>...] [INTERNAL <class>...])
# Adds <class>.h and <class>.cpp of this folder. HEADERS: a header alone. SOURCES: a source alone.
# INTERNAL: a pair whose header is not installed.
function(arbor_sources target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;INTERNAL")
  set(here ${CMAKE_CURRENT_SOURCE_DIR})
  set(public_headers ${arg_UNPARSED_ARGUMENTS} ${arg_HEADERS})
  set(sources ${arg_UNPARSED_ARGUMENTS} ${arg_SOURCES} ${arg_INTERNAL})
  list(TRANSFORM public_headers REPLACE "(.+)" "${here}/\\1.h")
  list(TRANSFORM sources REPLACE "(.+)" "${here}/\\1.cpp")
  set(internal_headers ${arg_INTERNAL})
  list(TRANSFORM internal_headers REPLACE "(.+)" "${here}/\\1.h")
  target_sources(${target}
    PRIVATE ${sources} ${internal_headers}
    PUBLIC FILE_SET HEADERS FILES ${public_headers})
endfunction()

# arbor_tests(<name> [DISPLAY] [ALONE] [PREFIX <text>] DEPENDS <targets>... SOURCES <TestFile>...)
# One test program a folder, one CTest entry a case. DISPLAY: with OpenGL on an X display, under Xvfb where
# there is no other. PREFIX: in front of each entry's name, for a second program with the same cases.
#
# An instrumented program is one entry, <name>: there a process costs more than most cases do, and cases that run
# one after the other show what they leave to each other. ALONE: not this one, whose cases end the application object.
function(arbor_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "DISPLAY;ALONE" "PREFIX" "DEPENDS;SOURCES")
  set(sources ${arg_SOURCES})
  list(TRANSFORM sources APPEND ".cpp")
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE arbor_test_support ${arg_DEPENDS})
  arbor_flags(${name})
  set(environment ENVIRONMENT QT_QPA_PLATFORM=offscreen) # the rest is up to main()
  if(arg_DISPLAY)
    set(environment)
    set(launcher TEST_LAUNCHER)
    if(CMAKE_VERSION VERSION_LESS 3.29)
      set(launcher CROSSCOMPILING_EMULATOR)
    endif()
    set_target_properties(${name} PROPERTIES ${launcher} ${PROJECT_SOURCE_DIR}/tools/with_display)
  endif()
  if(ARBOR_INSTRUMENTED AND NOT arg_ALONE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1500 ${environment})
    return()
  endif()
  set(prefix)
  if(arg_PREFIX)
    set(prefix TEST_PREFIX ${arg_PREFIX})
  endif()
  gtest_discover_tests(${name} ${prefix} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 ${environment})
endfunction()

# arbor_quick_tests(<name> DEPENDS <targets>... SOURCES <files>... SUITES <TestFile>... [PARTS <file>...])
# Tests in QML: the program of SOURCES runs the TestCase in each <TestFile>.qml, <suite>Test.qml, with one CTest entry
# <suite>.<case> a function test_<case>. PARTS: other QML files. They are the QML module K7.Arbor.Tests.
function(arbor_quick_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;SOURCES;SUITES;PARTS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE Qt6::QuickTest ${arg_DEPENDS})
  arbor_flags(${name})
  set(files ${arg_SUITES} ${arg_PARTS})
  list(TRANSFORM files APPEND ".qml")
  qt_add_qml_module(${name}
    URI K7.Arbor.Tests
    VERSION 1.0
    NO_PLUGIN
    NO_CACHEGEN
    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/K7/Arbor/Tests
    IMPORT_PATH ${PROJECT_BINARY_DIR}/qml
    DEPENDENCIES QtQuick QtTest K7.Arbor
    QML_FILES ${files})
  foreach(file ${arg_SUITES})
    set(path ${CMAKE_CURRENT_SOURCE_DIR}/${file}.qml)
    string(REGEX REPLACE "Test$" "" suite ${file})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(STRINGS ${path} cases REGEX "^ *function test_[A-Za-z0-9]+\\(")
    list(TRANSFORM cases REPLACE "^ *function test_([A-Za-z0-9]+).*" "\\1")
    foreach(case ${cases})
      add_test(NAME ${suite}.${case} COMMAND ${name} -input ${path} ${suite}::test_${case})
      set_tests_properties(${suite}.${case} PROPERTIES TIMEOUT 300 ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    endforeach()
  endforeach()
endfunction()

# arbor_bench(<name> [DISPLAY] DEPENDS <targets>... [SOURCES <name>...])
# The benchmark program of <name>.cpp and SOURCES. DISPLAY: it needs OpenGL on an X display; its folder tells
# tools/bench so.
function(arbor_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "DISPLAY" "" "DEPENDS;SOURCES")
  set(sources ${name} ${arg_SOURCES})
  list(TRANSFORM sources APPEND ".cpp")
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE benchmark::benchmark ${arg_DEPENDS})
  arbor_flags(${name})
  set(folder bench)
  if(arg_DISPLAY)
    set(folder bench/display)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${folder})
  add_dependencies(bench_programs ${name})
endfunction()

# arbor_fuzz(<name> DEPENDS <targets>...): the libFuzzer program of <name>.cpp. Its test runs the inputs of
# seeds/<name without Fuzz> and then new ones for a while.
function(arbor_fuzz name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS")
  add_executable(${name} ${name}.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${arg_DEPENDS})
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  arbor_flags(${name})
  add_dependencies(fuzz_targets ${name})
  string(REGEX REPLACE "Fuzz$" "" seeds ${name})
  set(found ${CMAKE_CURRENT_BINARY_DIR}/${name}_found)
  file(MAKE_DIRECTORY ${found})
  add_test(NAME fuzz.${name}
    COMMAND ${name} -seed=1 -max_total_time=20 ${found} ${CMAKE_CURRENT_SOURCE_DIR}/seeds/${seeds})
  set_tests_properties(fuzz.${name} PROPERTIES LABELS fuzz)
endfunction()
