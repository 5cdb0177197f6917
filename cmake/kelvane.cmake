# What every target of ours is compiled with.
add_library(kelvane_options INTERFACE)
target_compile_options(kelvane_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
target_compile_definitions(kelvane_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
if(KELVANE_SANITIZE)
  target_compile_options(kelvane_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kelvane_options INTERFACE -fsanitize=address,undefined)
endif()
if(KELVANE_FUZZ)
  target_compile_options(kelvane_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kelvane_options INTERFACE -fsanitize=address,undefined)
endif()

# What nearly every window includes. All of Qt would take twice as long to load, for every source.
set(kelvane_widget_headers
  <QtWidgets/QApplication> <QtWidgets/QBoxLayout> <QtWidgets/QLabel> <QtWidgets/QMainWindow>
  <QtWidgets/QMdiSubWindow> <QtWidgets/QPushButton> <QtWidgets/QTreeView> <functional> <memory> <vector>)

# kelvane_library(NAME [WIDGETS] SOURCES file... [LINK target...]): a static library that includes from
# src, with its precompiled Qt headers. Those of the first library without windows serve all such.
function(kelvane_library name)
  cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTORCC ON)
  target_include_directories(${name} PUBLIC ${kelvane_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC Qt6::Core ${arg_LINK} PRIVATE kelvane_options)
  get_property(libraries GLOBAL PROPERTY kelvane_libraries)
  if(arg_WIDGETS)
    target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::Svg)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_precompile_headers(${name} PRIVATE ${kelvane_widget_headers})
  elseif(libraries)
    list(GET libraries 0 first)
    target_precompile_headers(${name} REUSE_FROM ${first})
  else()
    target_precompile_headers(${name} PRIVATE <QtCore/QString> <QtCore/QStringBuilder> <vector> <memory> <optional> <functional>)
  endif()
  set_property(GLOBAL APPEND PROPERTY kelvane_libraries ${name})
endfunction()

# kelvane_folder(NAME FOLDER [LINK target...]): a library without windows of all sources of a folder of src and
# of the folders in it.
function(kelvane_folder name folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.cpp)
  kelvane_library(${name} SOURCES ${sources} ${ARGN})
endfunction()

# kelvane_refuse_untaken(TARGET...): fails when neither the libraries nor the targets named take a source of the
# calling folder, so that none is left out because of its name.
function(kelvane_refuse_untaken)
  file(GLOB_RECURSE untaken CONFIGURE_DEPENDS *.h *.hpp *.c *.cc *.cpp *.cxx)
  get_property(libraries GLOBAL PROPERTY kelvane_libraries)
  foreach(target ${libraries} ${ARGN})
    get_target_property(sources ${target} SOURCES)
    list(TRANSFORM sources PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/" REGEX "^[^/]")
    list(REMOVE_ITEM untaken ${sources})
  endforeach()
  if(untaken)
    list(JOIN untaken "\n  " untaken)
    message(FATAL_ERROR "No target takes these sources; their folder or name belongs to none of the layers in ${CMAKE_CURRENT_LIST_FILE}:\n  ${untaken}")
  endif()
endfunction()
