# Installs cabledoc, moves the installed folder, and builds clients against it and nothing else. Then configures a
# project that has cabledoc in a subfolder.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(flags "-Werror -Wall -Wextra")
if(SANITIZERS)
  string(APPEND flags " -fsanitize=${SANITIZERS}")
endif()

# run(COMMAND...): sets "output" to what the command prints.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
  if(NOT result EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command}: ${result}\n${output}${error}")
  endif()
  set(output ${output} PARENT_SCOPE)
endfunction()

function(configure project)
  run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/${project} -B ${WORK_DIR}/${project} -G Ninja
      -DCMAKE_CXX_COMPILER=${COMPILER} -DCABLEDOC_QT_MAJOR=${QT_MAJOR} ${ARGN})
endfunction()

function(build client)
  configure(${client} -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_CXX_FLAGS=${flags}")
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/${client})
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/installed)
file(RENAME ${WORK_DIR}/installed ${prefix})

foreach(file man/man1/cabledoc.1 man/man1/cabledoc-schedule-import.1 bash-completion/completions/cabledoc
    zsh/site-functions/_cabledoc fish/vendor_completions.d/cabledoc.fish)
  if(NOT EXISTS ${prefix}/share/${file})
    message(FATAL_ERROR "share/${file} is not installed")
  endif()
endforeach()

build(tests/consumer/interface)
run(${WORK_DIR}/tests/consumer/interface/interface)

string(APPEND flags " -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_KEYWORDS")
build(examples/fields)
build(examples/office)
# The program takes long to build, so only one version of Qt builds it.
set(program ${prefix}/bin/cabledoc)
if(QT_MAJOR EQUAL 6 AND NOT SANITIZERS)
  build(tools/cabledoc)
  set(program ${WORK_DIR}/tools/cabledoc/cabledoc)
endif()
run(${program} --version)
if(NOT output STREQUAL "cabledoc ${VERSION}\n")
  message(FATAL_ERROR "The program calls itself ${output}")
endif()
run(${program} new ${WORK_DIR}/site.job --floors 2)
run(${WORK_DIR}/examples/office/office ${WORK_DIR}/site.job)
run(${program} info ${WORK_DIR}/site.job)

# The same example with pkg-config. Qt 5 asks for -fPIC.
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBRARY_FOLDER}/pkgconfig)
run(${PKG_CONFIG} --cflags --libs cabledoc-qt${QT_MAJOR})
separate_arguments(arguments UNIX_COMMAND "${flags} -fPIC -std=c++17 ${output}")
run(${COMPILER} ${SOURCE_DIR}/examples/office/main.cpp -o ${WORK_DIR}/office ${arguments}
    -Wl,-rpath,${prefix}/${LIBRARY_FOLDER})
run(${WORK_DIR}/office ${WORK_DIR}/site.job)

# The client of that project is the example again. Only its syntax is checked, since building the library takes long.
configure(tests/consumer/parent -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
file(READ ${WORK_DIR}/tests/consumer/parent/compile_commands.json commands)
string(JSON command GET ${commands} 0 command)
run(sh -c "${command} -fsyntax-only")
