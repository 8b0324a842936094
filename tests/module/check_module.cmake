cmake_minimum_required(VERSION 3.25)
# What the library needs beside it, and what it shows: -DDLL=, -DOBJDUMP=, -DSOURCE=, -DRUNTIME= (the
# compiler's files that ship with it).
execute_process(COMMAND ${OBJDUMP} -p ${DLL} OUTPUT_VARIABLE dump RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "${OBJDUMP} cannot read ${DLL}")
endif()

set(allowed kernel32 user32 gdi32 advapi32 shell32 ole32 oleaut32 comctl32 comdlg32 msvcrt uxtheme
            shlwapi version ${RUNTIME})
string(REGEX MATCHALL "DLL Name: [^\n]+" imports "${dump}")
if(NOT imports)
  message(FATAL_ERROR "no import table in ${DLL}")
endif()
foreach(import IN LISTS imports)
  string(REGEX REPLACE "DLL Name: (.*)\\.(dll|DLL|drv)$" "\\1" name "${import}")
  string(TOLOWER "${name}" name)
  if(NOT name IN_LIST allowed)
    message(SEND_ERROR "${name} is neither Windows' own nor shipped beside the library")
  endif()
endforeach()

# Everything from the table of exported names on.
string(FIND "${dump}" "[Ordinal/Name Pointer] Table" at)
string(SUBSTRING "${dump}" ${at} -1 exports)

file(READ ${SOURCE}/src/module/orv3cal_c.h header)
string(REGEX MATCHALL "ORV3_CALL orv3_[a-z_0-9]+" functions "${header}")
list(TRANSFORM functions REPLACE "ORV3_CALL " "")
list(LENGTH functions count)
if(count LESS 10)
  message(FATAL_ERROR "only ${count} functions found in orv3cal_c.h")
endif()
foreach(name acrxGetApiVersion ${functions})
  if(NOT exports MATCHES "\\] ${name}\n")
    message(SEND_ERROR "${name} is not exported under its plain name")
  endif()
endforeach()

# The classes that hosts use, by their mangled names: a member, or the type by which an exception is
# caught.
foreach(class CString CBitmap CInvalidArgException CDataTypeStruct CDataTableTitle CDataCell CDataItem
              CDataFileInfo CDataTable CSteelJMData CLoadDataTable CReadFile CSteelItemGeGou
              CSteelJMGeGou CTableSearch CGetSteelDis NormalBoltData AngleHanFData WQWeldingData)
  string(LENGTH ${class} length)
  if(NOT exports MATCHES "\\] _Z(NK?|T[IV])${length}${class}[^\n]*\n")
    message(SEND_ERROR "no member of ${class} is exported")
  endif()
endforeach()
foreach(member VisitDataBase VisitSelJMDlg GetSysTemJMItem GetDataItemArea)
  string(LENGTH ${member} length)
  if(NOT exports MATCHES "\\] _ZN14CLoadDataTable${length}${member}[^\n]*\n")
    message(SEND_ERROR "CLoadDataTable::${member} is not exported")
  endif()
endforeach()
