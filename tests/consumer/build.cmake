# Installs the library into an empty folder, builds its clients against it and nothing else, and runs
# them.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output ERROR_VARIABLE output)
endfunction()

set(flags "-Werror -Wall -Wextra -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_KEYWORDS")
if(SANITIZERS)
  string(APPEND flags " -fsanitize=${SANITIZERS}")
endif()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
foreach(client tools/cabledoc examples/fields examples/office)
  run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/${client} -B ${WORK_DIR}/${client} -G Ninja
      -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_CXX_FLAGS=${flags}")
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/${client})
endforeach()
run(${WORK_DIR}/tools/cabledoc/cabledoc new ${WORK_DIR}/site.job --floors 2)
run(${WORK_DIR}/examples/office/office ${WORK_DIR}/site.job)
run(${WORK_DIR}/tools/cabledoc/cabledoc info ${WORK_DIR}/site.job)
