# run(<command>...): the command's output, standard error included, in RUN_OUTPUT; ends the test where it fails.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "failed with ${result}: ${command}\n${output}")
    endif()
    set(RUN_OUTPUT "${output}" PARENT_SCOPE)
endfunction()

# expect(<text> <regular expression>): ends the test where the text does not match.
function(expect text regex)
    if(NOT text MATCHES "${regex}")
        message(FATAL_ERROR "expected to match \"${regex}\":\n${text}")
    endif()
endfunction()
