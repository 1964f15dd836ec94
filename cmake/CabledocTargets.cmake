# What the targets of the project are compiled with, how the folders of src/ become targets, and how libraries are
# installed.

add_library(cabledoc_warnings INTERFACE)
target_compile_options(cabledoc_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion
  # What clang says of Qt's own QSKIP().
  -Wno-gnu-zero-variadic-macro-arguments)
target_compile_definitions(cabledoc_warnings INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(CABLEDOC_SANITIZERS)
  target_compile_options(cabledoc_warnings INTERFACE
    -fsanitize=${CABLEDOC_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(cabledoc_warnings INTERFACE -fsanitize=${CABLEDOC_SANITIZERS})
endif()

# All but the tests: no text passes between its encodings unseen.
add_library(cabledoc_strict INTERFACE)
target_compile_definitions(cabledoc_strict INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING)
target_link_libraries(cabledoc_strict INTERFACE cabledoc_warnings)

# Public headers are gathered here, flat, as they are when installed: <cabledoc/jobeditor.h>. Each class that they
# define gets a header of its own name that includes them: <cabledoc/JobEditor>. The program and the examples see this
# folder only.
set(CABLEDOC_PUBLIC_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)

function(cabledoc_public_headers)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header FILENAME name)
    configure_file(${header} ${CABLEDOC_PUBLIC_INCLUDE_DIR}/cabledoc/${name} COPYONLY)
    file(STRINGS ${header} definitions REGEX "^(template <.*> )?(class|struct) [^;]*$")
    foreach(definition IN LISTS definitions)
      string(REGEX REPLACE ".*(class|struct) (CABLEDOC_EXPORT )?([A-Za-z_]+).*" "\\3" class ${definition})
      file(CONFIGURE OUTPUT ${CABLEDOC_PUBLIC_INCLUDE_DIR}/cabledoc/${class} CONTENT "#include \"${name}\"\n")
      install(FILES ${CABLEDOC_PUBLIC_INCLUDE_DIR}/cabledoc/${class}
              DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${CABLEDOC_PACKAGE}/cabledoc)
      if(definition MATCHES CABLEDOC_EXPORT)
        set_property(GLOBAL APPEND PROPERTY CABLEDOC_EXPORTED_CLASSES ${class})
      endif()
    endforeach()
  endforeach()
  install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${CABLEDOC_PACKAGE}/cabledoc)
endfunction()

# cabledoc_install_library(TARGET NAME PATTERN...)
# Installs a shared library as libNAME.so.ABI. It exports the C++ names that match a pattern and no others.
function(cabledoc_install_library target name)
  list(JOIN ARGN ";\n      " patterns)
  set(version_script ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
  file(CONFIGURE OUTPUT ${version_script} CONTENT
"CABLEDOC_QT${CABLEDOC_QT_MAJOR}_${CABLEDOC_ABI} {
  global:
    extern \"C++\" {
      ${patterns};
    };
  local:
    *;
};
")
  target_link_options(${target} PRIVATE LINKER:--version-script=${version_script})
  set_target_properties(${target} PROPERTIES
    LINK_DEPENDS ${version_script}
    OUTPUT_NAME ${name}
    SOVERSION ${CABLEDOC_ABI})
  target_include_directories(${target} INTERFACE
    $<BUILD_INTERFACE:${CABLEDOC_PUBLIC_INCLUDE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${CABLEDOC_PACKAGE}>)
  install(TARGETS ${target} EXPORT cabledocTargets)
endfunction()

# Headers that most sources read in the end. They are compiled once. Sources include what they need all the same.
set(CABLEDOC_PRECOMPILED_HEADERS
  <QtCore/QCoreApplication>
  <QtCore/QHash>
  <QtCore/QLocale>
  <QtCore/QMap>
  <QtCore/QStringList>
  <QtCore/QVector>
  <QtXml/QDomDocument>
  <algorithm>
  <functional>
  <memory>
  <optional>
  <set>
  <tsl/ordered_map.h>
  <vector>)

# cabledoc_layer(NAME SOURCES ... HEADERS ... USES ...)
# One folder of src/ as a set of objects. It finds the headers of the folders it uses and of no
# others, so the compiler keeps the order of the folders. The test "layers" keeps it for symbols.
# HEADERS are the public ones.
function(cabledoc_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "SOURCES;HEADERS;USES")
  foreach(used IN LISTS layer_USES)
    get_property(further GLOBAL PROPERTY ${used}_uses)
    set_property(GLOBAL APPEND PROPERTY cabledoc_${name}_uses ${used} ${further})
  endforeach()
  add_library(cabledoc_${name} OBJECT ${layer_SOURCES} ${layer_HEADERS})
  target_include_directories(cabledoc_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/export)
  target_compile_definitions(cabledoc_${name} PRIVATE cabledoc_EXPORTS)
  target_link_libraries(cabledoc_${name}
    PUBLIC Qt${CABLEDOC_QT_MAJOR}::Core Qt${CABLEDOC_QT_MAJOR}::Gui Qt${CABLEDOC_QT_MAJOR}::Xml ${layer_USES}
    PRIVATE cabledoc_strict)
  get_property(layers GLOBAL PROPERTY CABLEDOC_LAYERS)
  if(layers)
    list(GET layers 0 first)
    target_precompile_headers(cabledoc_${name} REUSE_FROM ${first})
  else()
    target_precompile_headers(cabledoc_${name} PRIVATE ${CABLEDOC_PRECOMPILED_HEADERS})
  endif()
  cabledoc_public_headers(${layer_HEADERS})
  target_sources(cabledoc PRIVATE $<TARGET_OBJECTS:cabledoc_${name}>)
  set_property(GLOBAL APPEND PROPERTY CABLEDOC_LAYERS cabledoc_${name})
endfunction()
