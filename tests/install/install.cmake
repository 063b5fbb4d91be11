# Installs BUILD below FOLDER, moves what is there and runs CHECK on it.
function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
set(there "${FOLDER}/a home of its own")
file(REMOVE_RECURSE ${FOLDER})
run(${CMAKE_COMMAND} -E env "DESTDIR=${FOLDER}/first" ${CMAKE_COMMAND} --install ${BUILD} --prefix /opt
    OUTPUT_QUIET)
file(MAKE_DIRECTORY ${there} ${FOLDER}/work)
file(RENAME ${FOLDER}/first/opt ${there}/opt)
# A path of the build tree would be found here and nowhere else.
execute_process(COMMAND grep -rlF ${BUILD} ${there} OUTPUT_VARIABLE tied)
if(tied)
    message(FATAL_ERROR "These know where they were built:\n${tied}")
endif()
run(${CHECK} ${there}/opt ${FOLDER}/work)
