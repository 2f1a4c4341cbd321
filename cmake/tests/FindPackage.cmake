# Configures, builds and runs SOURCE_DIR against the library installed in PREFIX, found with find_package.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR} -G Ninja
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DCMAKE_PREFIX_PATH=${PREFIX})
run(${CMAKE_COMMAND} --build ${WORK_DIR})
run(${WORK_DIR}/consumer)
expect("${RUN_OUTPUT}" "consumer: equal\n$")
