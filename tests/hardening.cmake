# Fails when the program PROGRAM, compiled with FLAGS, lacks what the release flags promise. Needs readelf (READELF).
function(require option pattern what)
  execute_process(COMMAND ${READELF} -W ${option} ${PROGRAM} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  if(NOT text MATCHES "${pattern}")
    message(SEND_ERROR "${PROGRAM} lacks ${what}")
  endif()
endfunction()

require(-h "DYN \\(" "a position that changes from start to start")
require(-l "GNU_RELRO" "a relocation table that is read-only after start")
require(-d "BIND_NOW|NOW" "the binding of all functions at start")
require(-s "__stack_chk_fail" "stack protection")

# Shows in a program only where it calls a function that has a checked twin.
if(NOT FLAGS MATCHES "-D_FORTIFY_SOURCE=2")
  message(SEND_ERROR "${PROGRAM} was compiled without checked library calls")
endif()

execute_process(COMMAND ${READELF} -W -l ${PROGRAM} OUTPUT_VARIABLE segments)
if(segments MATCHES "GNU_STACK[^\n]*RWE")
  message(SEND_ERROR "${PROGRAM} has an executable stack")
endif()
