# Brings language files up to the texts of library and program: cmake -DLUPDATE=... -DFILES=... -P this file.
# Without line numbers, so that the files change with the texts only.
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH sources)
execute_process(
  COMMAND ${LUPDATE} -silent ${sources} ${sources}/../tools -locations none -no-obsolete -source-language en -ts ${FILES}
  COMMAND_ERROR_IS_FATAL ANY)
