# Installs the built library into a scratch prefix, then builds and runs a
# small host against it twice: through find_package(VornStd) and through
# pkg-config.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

set(flags "")
if(SANITIZE)
  set(flags "-fsanitize=${SANITIZE}")
endif()

run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/install/consumer -B ${WORK_DIR}/consumer
    -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_CXX_FLAGS=${flags}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${CMAKE_COMMAND} -E env VORNSTD_DEBUG_OUTPUT= ${WORK_DIR}/consumer/consumer)
if(NOT last_output STREQUAL "com.kelmoran.exception.VornIOException: outer: inner; --> nested com.kelmoran.exception.VornException: inner\n")
  message(FATAL_ERROR "unexpected output from the find_package consumer: '${last_output}'")
endif()

find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG)
  file(GLOB_RECURSE pc_file ${prefix}/*/vornstd.pc)
  get_filename_component(pc_dir "${pc_file}" DIRECTORY)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_dir}
                  ${PKG_CONFIG} --cflags --libs vornstd
                  OUTPUT_VARIABLE pc_flags OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE pc_result)
  if(NOT pc_result EQUAL 0)
    message(FATAL_ERROR "pkg-config does not know vornstd")
  endif()
  separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
  run(c++ -std=c++17 ${flags} ${SOURCE_DIR}/tests/install/consumer/main.cpp ${pc_flags}
      -Wl,-rpath,${pc_dir}/.. -o ${WORK_DIR}/pc-consumer)
  run(${WORK_DIR}/pc-consumer)
endif()
