# The declarations for Visual Basic, and programs that call through them.
set(hostDir "${PROJECT_SOURCE_DIR}/Hosts/VisualBasic")
set(testDir "${CMAKE_CURRENT_SOURCE_DIR}/visualbasic")
set(outDir "${CMAKE_CURRENT_BINARY_DIR}/visualbasic")
file(MAKE_DIRECTORY "${outDir}")

# The headers as a C caller sees them.
foreach(header QUVARDBS1C QUVARDCR1C)
  get_target_property(headerDir ${header} SOURCE_DIR)
  add_custom_command(OUTPUT "${outDir}/${header}ForC.txt"
    COMMAND "${CMAKE_C_COMPILER}" -E -P "${headerDir}/${header}.h" > "${outDir}/${header}ForC.txt"
    DEPENDS "${headerDir}/${header}.h" VERBATIM)
endforeach()
set(headersForC "${outDir}/QUVARDBS1CForC.txt" "${outDir}/QUVARDCR1CForC.txt")
add_custom_target(HeadersForC ALL DEPENDS ${headersForC})
foreach(dialect net applications)
  set(file "QUVARDBS1C.vb")
  if(dialect STREQUAL "applications")
    set(file "QUVARDBS1C.bas")
  endif()
  quvard_test(VisualBasic.Declarations.${dialect} env LC_ALL=C awk -v "dialect=${dialect}"
    -f "${testDir}/Declarations.awk" ${headersForC} "${hostDir}/${file}")
endforeach()

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
add_custom_target(TranslatedDeclarations DEPENDS "${translated}")

function(visual_basic_program name)
  quvard_visual_basic_program(${name} "${testDir}/Program.vbproj" SOURCES ${ARGN})
endfunction()
set(calls "${testDir}/Calls.vb" "${testDir}/LooseCalls.vb")
visual_basic_program(VisualBasicCalls ${calls} "${hostDir}/QUVARDBS1C.vb")
visual_basic_program(TranslatedCalls ${calls} "${translated}" "${testDir}/StrPtr.vb")
visual_basic_program(TranslatedReport
  "${hostDir}/Report/Report.vb" "${translated}" "${testDir}/StrPtr.vb")
add_dependencies(TranslatedCalls TranslatedDeclarations)
add_dependencies(TranslatedReport TranslatedDeclarations)
visual_basic_program(VisualBasicTraps "${testDir}/Traps.vb" "${hostDir}/QUVARDBS1C.vb")
add_custom_target(VisualBasicPrograms ALL)
add_dependencies(VisualBasicPrograms
  VisualBasicReport VisualBasicCalls TranslatedCalls TranslatedReport)

foreach(program VisualBasicReport TranslatedReport)
  add_test(NAME VisualBasic.${program}.IsThatOfTheCppHost COMMAND "${CMAKE_COMMAND}"
    "-DDOTNET=${QUVARDBS1C_DOTNET}" "-DPROGRAM=$<TARGET_FILE_DIR:QUVARDBS1C>/${program}.dll"
    "-DREPORT=$<TARGET_FILE:report>" "-DFOLDER=${outDir}/${program}"
    -P "${testDir}/SameReport.cmake")
  set_tests_properties(VisualBasic.${program}.IsThatOfTheCppHost PROPERTIES TIMEOUT 600)
endforeach()
foreach(program VisualBasicCalls TranslatedCalls)
  add_test(NAME VisualBasic.${program}.GiveTheResults
    COMMAND "${QUVARDBS1C_DOTNET}" "$<TARGET_FILE_DIR:QUVARDBS1C>/${program}.dll")
  set_tests_properties(VisualBasic.${program}.GiveTheResults PROPERTIES TIMEOUT 600)
endforeach()
add_test(NAME VisualBasic.TrapsDoNotCompile COMMAND "${CMAKE_COMMAND}"
  "-DBUILD=${PROJECT_BINARY_DIR}" "-DTRAPS=${testDir}/Traps.vb" -P "${testDir}/Traps.cmake")
set_tests_properties(VisualBasic.TrapsDoNotCompile PROPERTIES TIMEOUT 600)

foreach(part first snippets applications)
  set(declarations "${hostDir}/QUVARDBS1C.vb")
  if(part STREQUAL "applications")
    set(declarations "${translated}" "${testDir}/StrPtr.vb")
  endif()
  add_test(NAME VisualBasic.PageCode.${part} COMMAND "${testDir}/PageCode.sh"
    ${part} "${outDir}/${part}" "$<TARGET_FILE_DIR:QUVARDBS1C>" ${declarations})
  # No noise, and no process that stays behind.
  set_tests_properties(VisualBasic.PageCode.${part} PROPERTIES TIMEOUT 600 ENVIRONMENT
    "DOTNET=${QUVARDBS1C_DOTNET};DOTNET_CLI_HOME=${PROJECT_BINARY_DIR}/dotnet;DOTNET_NOLOGO=1;DOTNET_CLI_TELEMETRY_OPTOUT=1;DOTNET_GENERATE_ASPNET_CERTIFICATE=false;MSBUILDDISABLENODEREUSE=1;UseSharedCompilation=false")
endforeach()
