# Fails when PROGRAM, compiled with FLAGS, is not what a user of Windows needs: one small file that imports only what Windows
# itself has, hardened, with its manifest, icon and version. Needs objdump (OBJDUMP) and what the linker told (MAP).
set(largest 1000000)  # bytes
set(windows "advapi32|comctl32|comdlg32|dwmapi|gdi32|kernel32|msvcrt|ntdll|ole32|oleacc|oleaut32|shell32|shlwapi|ucrtbase|\
user32|uxtheme|version|api-ms-win-crt-[a-z0-9-]+")

function(require text pattern what)
  if(NOT text MATCHES "${pattern}")
    message(SEND_ERROR "${PROGRAM} lacks ${what}")
  endif()
endfunction()

file(SIZE ${PROGRAM} size)
message(STATUS "${size} bytes")
if(size GREATER largest)
  message(SEND_ERROR "${PROGRAM} is larger than ${largest} bytes")
endif()

execute_process(COMMAND ${OBJDUMP} -x ${PROGRAM} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "DLL Name: [^\n]+" imports "${headers}")
require("${imports}" "KERNEL32" "a list of imports that this test can read")
foreach(import IN LISTS imports)
  string(TOLOWER "${import}" name)
  if(NOT name MATCHES "^dll name: (${windows})\\.dll$")
    message(SEND_ERROR "${PROGRAM} needs a library that not every Windows has: ${import}")
  endif()
endforeach()

require("${headers}" "Subsystem[^\n]*Windows GUI" "a subsystem that opens no console")
require("${headers}" "DYNAMIC_BASE" "a position that changes from start to start")
require("${headers}" "HIGH_ENTROPY_VA" "a position anywhere in 64 bits")
require("${headers}" "[1-9a-f][0-9a-f]* Base Relocation Directory" "what moves it to another position")
require("${headers}" "NX_COMPAT" "data that is not executed")
file(STRINGS ${MAP} protection REGEX "\\(__stack_chk_fail\\)")  # called
require("${protection}" "__stack_chk_fail" "stack protection")
# Shows in a program only where it calls a function that has a checked twin.
require("${FLAGS}" "-D_FORTIFY_SOURCE=2" "checked library calls")

foreach(kind IN ITEMS "0e:an icon" "10:a version" "18:a manifest")
  string(REPLACE ":" ";" kind ${kind})
  list(POP_FRONT kind number what)
  require("${headers}" "Entry: ID: 0x0000${number}" "${what}")
endforeach()
file(STRINGS ${PROGRAM} manifest REGEX "<")
foreach(entry IN ITEMS ">PerMonitorV2, PerMonitor</dpiAwareness>" ">true/pm</dpiAware>" ">true</longPathAware>"
                       "level=\"asInvoker\"" "Common-Controls\" version=\"6" "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")
  require("${manifest}" "${entry}" "in its manifest ${entry}")
endforeach()
if(manifest MATCHES "<activeCodePage")
  message(SEND_ERROR "${PROGRAM} has a code page of its own: it reads no path that the system's own one writes")
endif()
