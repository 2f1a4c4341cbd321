# Builds and runs SOURCE_DIR/main.cpp with a bare compiler and the flags that pkg-config gives.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
set(ENV{PKG_CONFIG_PATH} ${PREFIX}/${LIBDIR}/pkgconfig)
set(ENV{LD_LIBRARY_PATH} ${PREFIX}/${LIBDIR})

run(${PKG_CONFIG} --modversion libDOM)
expect("${RUN_OUTPUT}" "^${VERSION}\n$")
run(${PKG_CONFIG} --cflags --libs libDOM)
separate_arguments(flags UNIX_COMMAND "${RUN_OUTPUT}")
run(${COMPILER} -std=c++20 ${SOURCE_DIR}/main.cpp ${flags} -o ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer)
expect("${RUN_OUTPUT}" "consumer: equal\n$")
