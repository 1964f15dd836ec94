# Installs the library into an empty folder, builds its clients against it and nothing else, and runs
# them.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command}: ${result}\n${output}")
  endif()
endfunction()

# build(CLIENT FLAGS): builds the client in that folder.
function(build client flags)
  if(SANITIZERS)
    string(APPEND flags " -fsanitize=${SANITIZERS}")
  endif()
  run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/${client} -B ${WORK_DIR}/${client} -G Ninja
      -DCMAKE_CXX_COMPILER=${COMPILER} -DCABLEDOC_QT_MAJOR=${QT_MAJOR} -DCMAKE_PREFIX_PATH=${prefix}
      "-DCMAKE_CXX_FLAGS=-Werror -Wall -Wextra ${flags}")
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/${client})
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
build(tests/consumer/interface "")
foreach(client tools/cabledoc examples/fields examples/office)
  build(${client} "-DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_KEYWORDS")
endforeach()
run(${WORK_DIR}/tests/consumer/interface/interface)
run(${WORK_DIR}/tools/cabledoc/cabledoc new ${WORK_DIR}/site.job --floors 2)
run(${WORK_DIR}/examples/office/office ${WORK_DIR}/site.job)
run(${WORK_DIR}/tools/cabledoc/cabledoc info ${WORK_DIR}/site.job)
