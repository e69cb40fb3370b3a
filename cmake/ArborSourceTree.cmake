# The source tree that the library looks into when its user develops QML: a folder that holds branch9/src/ with a
# folder for each module. A checkout at .../branch9/src/arbor_qml_support lies in such a tree. For a checkout at any
# other place the build makes one of links beside its outputs, so that an edited file is still the checkout's own.

# Gives in <out> the folder of the modules, and in <made_of_links> whether the build has to fill it.
function(_arbor_source_tree out made_of_links)
  if(PROJECT_SOURCE_DIR MATCHES "^(.*/branch9/src)/arbor_qml_support$")
    set(${out} ${CMAKE_MATCH_1} PARENT_SCOPE)
    set(${made_of_links} FALSE PARENT_SCOPE)
  else()
    set(${out} ${PROJECT_BINARY_DIR}/branch9/src PARENT_SCOPE)
    set(${made_of_links} TRUE PARENT_SCOPE)
  endif()
endfunction()

# arbor_source_tree_module(<name> <folder>)
# Puts the module whose sources lie in <folder> into the tree as branch9/src/<name>. In a tree that is there already
# modules lie beside each other, and nothing is done.
function(arbor_source_tree_module name folder)
  _arbor_source_tree(tree made_of_links)
  if(made_of_links)
    file(MAKE_DIRECTORY ${tree})
    file(CREATE_LINK ${folder} ${tree}/${name} SYMBOLIC)
  endif()
endfunction()

# arbor_main_source(<source>)
# Tells <source> the path of the main source in the tree, as the text ARBOR_MAIN_SOURCE. The tree's root is three
# folders above it.
function(arbor_main_source source)
  _arbor_source_tree(tree made_of_links)
  set_property(SOURCE ${source} APPEND PROPERTY
    COMPILE_DEFINITIONS "ARBOR_MAIN_SOURCE=\"${tree}/arbor_qml_support/arbor_qml_support.cpp\"")
endfunction()
