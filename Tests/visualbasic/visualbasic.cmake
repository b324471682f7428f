# Programs in Visual Basic that call through the declarations. (That these are those of the header is
# checked by scripts/docs.)
set(hostDir "${PROJECT_SOURCE_DIR}/Hosts/VisualBasic")
set(testDir "${CMAKE_CURRENT_SOURCE_DIR}/visualbasic")
set(outDir "${CMAKE_CURRENT_BINARY_DIR}/visualbasic")
file(MAKE_DIRECTORY "${outDir}")

# A program of .NET cannot load libraries with sanitizers in them, or for another processor.
if(NOT TARGET VisualBasicReport OR CMAKE_CXX_FLAGS MATCHES "-fsanitize" OR CMAKE_CROSSCOMPILING)
  return()
endif()

set(translated "${outDir}/Translated.vb")
set(memmoveLibrary "libc.so.6")
if(APPLE)
  set(memmoveLibrary "/usr/lib/libSystem.B.dylib")
endif()
add_custom_command(OUTPUT "${translated}"
  COMMAND sed -f "${testDir}/translate.sed" -e "s|/usr/lib/libSystem.B.dylib|${memmoveLibrary}|"
    "${hostDir}/QUVARDBS1C.bas" > "${translated}"
  DEPENDS "${hostDir}/QUVARDBS1C.bas" "${testDir}/translate.sed" VERBATIM)
# FormatByPattern is for .NET alone.
set(examples "${outDir}/Examples.vb")
set(translatedExamples "${outDir}/TranslatedExamples.vb")
set(routinesPage "${PROJECT_SOURCE_DIR}/docs/visual-basic-routines.md")
add_custom_command(OUTPUT "${examples}" "${translatedExamples}"
  COMMAND awk -f "${testDir}/Examples.awk" "${routinesPage}" > "${examples}"
  COMMAND grep -v FormatByPattern "${examples}" > "${translatedExamples}"
  DEPENDS "${routinesPage}" "${testDir}/Examples.awk" VERBATIM)
add_custom_target(VisualBasicSources DEPENDS "${translated}" "${examples}" "${translatedExamples}")

function(visual_basic_program name)
  quvard_visual_basic_program(${name} "${testDir}/Program.vbproj" SOURCES ${ARGN})
  add_dependencies(${name} VisualBasicSources)
endfunction()
set(calls "${testDir}/Calls.vb" "${testDir}/LooseCalls.vb")
visual_basic_program(VisualBasicCalls
  ${calls} "${examples}" "${testDir}/Net.vb" "${hostDir}/QUVARDBS1C.vb")
visual_basic_program(TranslatedCalls
  ${calls} "${translatedExamples}" "${translated}" "${testDir}/StrPtr.vb")
visual_basic_program(VisualBasicSpeed "${testDir}/Speed.vb" "${hostDir}/QUVARDBS1C.vb")
visual_basic_program(VisualBasicTraps "${testDir}/Traps.vb" "${hostDir}/QUVARDBS1C.vb")
add_custom_target(VisualBasicPrograms ALL)
add_dependencies(VisualBasicPrograms
  VisualBasicReport VisualBasicCalls TranslatedCalls VisualBasicSpeed)

function(visual_basic_test name)
  add_test(NAME VisualBasic.${name} COMMAND ${ARGN})
  # For the compiler: no noise, and no process that stays behind.
  set_tests_properties(VisualBasic.${name} PROPERTIES TIMEOUT 600 ENVIRONMENT
    "DOTNET=${QUVARDBS1C_DOTNET};DOTNET_CLI_HOME=${PROJECT_BINARY_DIR}/dotnet;DOTNET_NOLOGO=1;DOTNET_CLI_TELEMETRY_OPTOUT=1;DOTNET_GENERATE_ASPNET_CERTIFICATE=false;MSBUILDDISABLENODEREUSE=1;UseSharedCompilation=false")
endfunction()

foreach(program VisualBasicCalls TranslatedCalls VisualBasicSpeed)
  visual_basic_test(${program}
    "${QUVARDBS1C_DOTNET}" "$<TARGET_FILE_DIR:QUVARDBS1C>/${program}.dll")
endforeach()
set_property(TEST VisualBasic.VisualBasicSpeed PROPERTY RUN_SERIAL ON)
visual_basic_test(ReportIsThatOfTheCppHost "${CMAKE_COMMAND}"
  "-DDOTNET=${QUVARDBS1C_DOTNET}" "-DPROGRAM=$<TARGET_FILE_DIR:QUVARDBS1C>/VisualBasicReport.dll"
  "-DREPORT=$<TARGET_FILE:report>" "-DFOLDER=${outDir}/report" -P "${testDir}/SameReport.cmake")
visual_basic_test(TrapsDoNotCompile "${CMAKE_COMMAND}"
  "-DBUILD=${PROJECT_BINARY_DIR}" "-DTRAPS=${testDir}/Traps.vb" -P "${testDir}/Traps.cmake")
foreach(part first snippets applications)
  set(declarations)
  if(part STREQUAL "applications")
    set(declarations "${translated}" "${testDir}/StrPtr.vb")
  endif()
  visual_basic_test(PageCode.${part}
    "${testDir}/PageCode.sh" ${part} "${outDir}/${part}" "${PROJECT_BINARY_DIR}" ${declarations})
  # The target uninstall removes what was installed last.
  set_property(TEST VisualBasic.PageCode.${part} PROPERTY RESOURCE_LOCK consumers)
endforeach()
visual_basic_test(Readme
  "${CMAKE_CURRENT_SOURCE_DIR}/docs/ReadmeProgram.sh" vb "${PROJECT_BINARY_DIR}")
set_property(TEST VisualBasic.Readme PROPERTY RESOURCE_LOCK consumers)
