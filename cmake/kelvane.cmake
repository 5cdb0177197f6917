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

# kelvane_library(NAME [WIDGETS] SOURCES file... LINK target...): a static library that includes from
# src, with its precompiled Qt headers.
function(kelvane_library name)
  cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${kelvane_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC Qt6::Core ${arg_LINK} PRIVATE kelvane_options)
  if(arg_WIDGETS)
    target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::Svg)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_precompile_headers(${name} PRIVATE ${kelvane_widget_headers})
  else()
    target_precompile_headers(${name} PRIVATE <QtCore/QString> <QtCore/QStringBuilder> <vector> <memory> <optional> <functional>)
  endif()
endfunction()
