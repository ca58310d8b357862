# Runs `quilmar import` as a user would and checks its exit status, standard
# output and standard error.
#   -DQUILMAR=... -DARGS="a|b" [-DINPUT=file for standard input] -DSTATUS=n
#   [-DOUT_MATCH=regex] [-DERR_MATCH=regex]
string(REPLACE "|" ";" ARGS "${ARGS}")
set(input_args)
if(DEFINED INPUT)
  set(input_args INPUT_FILE ${INPUT})
endif()
execute_process(COMMAND ${QUILMAR} import ${ARGS} ${input_args}
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status EQUAL STATUS)
  message(FATAL_ERROR "exit status ${status}, expected ${STATUS}\nstdout:\n${out}\nstderr:\n${err}")
endif()
if(DEFINED OUT_MATCH AND NOT out MATCHES "${OUT_MATCH}")
  message(FATAL_ERROR "standard output does not match ${OUT_MATCH}:\n${out}")
endif()
if(DEFINED ERR_MATCH AND NOT err MATCHES "${ERR_MATCH}")
  message(FATAL_ERROR "standard error does not match ${ERR_MATCH}:\n${err}")
endif()
