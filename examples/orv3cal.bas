Attribute VB_Name = "Orv3Cal"
' Orv3Cal in a spreadsheet (VBA 7, 32 or 64 bits): import this module and put the folder of
' Orv3CalDll.dll, and of the section stores, into the two constants below. Then in cells:
'
'   =OrvSection("h", A1:A4, "Ixo")                mm^4, of the sizes b, h, tf, tw in A1:A4
'   =OrvCell(B1, "I20a", "A(cm^2)")               a cell of the catalogue table named in B1
'   =OrvGeometry(B1, "I20a", "area")              mm^2
'   =OrvPairGeometry(B1, B2, 10, "Iy")            mm^4, of a pair whose parts stand 10 mm apart
'   =OrvSteel("Q345", 20, "f")                    N/mm^2
'   =OrvPhi(100, 235, "b")
'   =OrvCheck("bolt", D1:E19)                     keys in D, values in E; two columns of results
'   =OrvCheck("fillet", D1:E11, "2003")           by the edition before, for existing structures
'   =OrvCheckMember(D1:E19)                       the same of a member ("section.table", "lengths.x")
'   =OrvChoose(B1, D1:E12)                        the lightest rows of a table that pass; six columns
'   =OrvCheckBolt(D1:E19)                         the same by 2003
'   OrvPick                                       a macro: opens the browser
'
' What a function cannot do is shown in its cell as a text that begins with "#".
Option Explicit

Private Const LIBRARY_FOLDER As String = "C:\Orv3Cal\bin\"
Private Const DATA_FOLDER As String = "C:\Orv3Cal\share\orv3cal\"

Private Const EVERY_TABLE As Long = &H3000FFF
Private Const PROPERTY_NAMES As String = "xo yo A Ixo Iyo Wxo1 Wxo2 WyoL WyoR Sxo Syo " & _
    "rxo ryo Ix Iy Wx1 Wx2 WyL WyR Sx1 Sx2 SyL SyR rx ry"
Private Const GEOMETRY_NAMES As String = "area width height xc yc Ix Iy Sxo rx ry Wxo1 Wxo2 " & _
    "WyoL WyoR tmax tmin e0 Iw symX symY"

' Texts are handed over as pointers to their UTF-16 characters (StrPtr).
Private Declare PtrSafe Function LoadLibraryExW Lib "kernel32" ( _
    ByVal file As LongPtr, ByVal reserved As LongPtr, ByVal flags As Long) As LongPtr
Private Declare PtrSafe Function orv3_last_error Lib "Orv3CalDll.dll" ( _
    ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_section Lib "Orv3CalDll.dll" ( _
    ByVal style As LongPtr, ByRef sizes As Double, ByVal count As Long, ByVal x As Double, _
    ByVal y As Double, ByRef properties As Double, ByVal room As Long) As Long
Private Declare PtrSafe Function orv3_open_data Lib "Orv3CalDll.dll" ( _
    ByVal folder As LongPtr) As Long
Private Declare PtrSafe Function orv3_list_numbers Lib "Orv3CalDll.dll" ( _
    ByVal table As LongPtr, ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_cell Lib "Orv3CalDll.dll" ( _
    ByVal table As LongPtr, ByVal number As LongPtr, ByVal sign As LongPtr, _
    ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_geometry Lib "Orv3CalDll.dll" ( _
    ByVal table As LongPtr, ByVal number As LongPtr, ByVal turn As Double, _
    ByRef values As Double, ByVal room As Long) As Long
Private Declare PtrSafe Function orv3_pair_geometry Lib "Orv3CalDll.dll" ( _
    ByVal table As LongPtr, ByVal number As LongPtr, ByVal spacing As Double, _
    ByVal turn As Double, ByRef values As Double, ByVal room As Long) As Long
Private Declare PtrSafe Function orv3_check Lib "Orv3CalDll.dll" ( _
    ByVal kind As LongPtr, ByVal code As LongPtr, ByVal given As LongPtr, _
    ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_check_bolt Lib "Orv3CalDll.dll" ( _
    ByVal given As LongPtr, ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_check_fillet Lib "Orv3CalDll.dll" ( _
    ByVal given As LongPtr, ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_check_butt Lib "Orv3CalDll.dll" ( _
    ByVal given As LongPtr, ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_check_member Lib "Orv3CalDll.dll" ( _
    ByVal code As LongPtr, ByVal given As LongPtr, ByVal text As LongPtr, _
    ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_choose Lib "Orv3CalDll.dll" ( _
    ByVal tables As LongPtr, ByVal code As LongPtr, ByVal given As LongPtr, ByVal top As Long, _
    ByVal text As LongPtr, ByVal size As Long) As Long
Private Declare PtrSafe Function orv3_steel_strength Lib "Orv3CalDll.dll" ( _
    ByVal steel As LongPtr, ByVal thickness As Double, ByVal kind As LongPtr, _
    ByRef value As Double) As Long
Private Declare PtrSafe Function orv3_phi Lib "Orv3CalDll.dll" ( _
    ByVal slenderness As Double, ByVal yield As Double, ByVal bucklingClass As LongPtr, _
    ByRef value As Double) As Long
Private Declare PtrSafe Function orv3_browse Lib "Orv3CalDll.dll" ( _
    ByVal mask As Long, ByVal text As LongPtr, ByVal size As Long) As Long

Private m_loaded As Boolean
Private m_opened As Boolean

Public Function OrvSection(style As String, sizes As Range, name As String, _
                           Optional baseX As Double = 0, Optional baseY As Double = 0) As Variant
    Dim given() As Double, properties(0 To 24) As Double, i As Long
    LoadOnce
    ReDim given(0 To sizes.Count - 1)
    For i = 1 To sizes.Count
        given(i - 1) = sizes.Cells(i).Value
    Next i
    If orv3_section(StrPtr(style), given(0), sizes.Count, baseX, baseY, properties(0), 25) < 0 Then
        OrvSection = Failure()
    Else
        OrvSection = Named(PROPERTY_NAMES, name, properties)
    End If
End Function

Public Function OrvCell(table As String, number As String, sign As String) As Variant
    Dim text As String, length As Long
    OpenOnce
    text = String$(256, vbNullChar)
    length = orv3_cell(StrPtr(table), StrPtr(number), StrPtr(sign), StrPtr(text), 256)
    If length < 0 Then
        OrvCell = Failure()
    Else
        OrvCell = Value(Left$(text, length))
    End If
End Function

Public Function OrvGeometry(table As String, number As String, name As String, _
                            Optional turn As Double = 0) As Variant
    Dim values(0 To 19) As Double
    OpenOnce
    If orv3_geometry(StrPtr(table), StrPtr(number), turn, values(0), 20) < 0 Then
        OrvGeometry = Failure()
    Else
        OrvGeometry = Named(GEOMETRY_NAMES, name, values)
    End If
End Function

Public Function OrvPairGeometry(table As String, number As String, spacing As Double, _
                                name As String, Optional turn As Double = 0) As Variant
    Dim values(0 To 19) As Double
    OpenOnce
    If orv3_pair_geometry(StrPtr(table), StrPtr(number), spacing, turn, values(0), 20) < 0 Then
        OrvPairGeometry = Failure()
    Else
        OrvPairGeometry = Named(GEOMETRY_NAMES, name, values)
    End If
End Function

Public Function OrvSteel(steel As String, thickness As Double, kind As String) As Variant
    Dim strength As Double
    LoadOnce
    If orv3_steel_strength(StrPtr(steel), thickness, StrPtr(kind), strength) = 0 Then
        OrvSteel = strength
    Else
        OrvSteel = Failure()
    End If
End Function

Public Function OrvPhi(slenderness As Double, yield As Double, bucklingClass As String) As Variant
    Dim factor As Double
    LoadOnce
    If orv3_phi(slenderness, yield, StrPtr(bucklingClass), factor) = 0 Then
        OrvPhi = factor
    Else
        OrvPhi = Failure()
    End If
End Function

' A list of the numbers in a table, for a drop-down list.
Public Function OrvNumbers(table As String) As Variant
    Dim text As String, length As Long
    OpenOnce
    length = orv3_list_numbers(StrPtr(table), 0, 0)
    If length < 0 Then
        OrvNumbers = Failure()
        Exit Function
    End If
    text = String$(length + 1, vbNullChar)
    length = orv3_list_numbers(StrPtr(table), StrPtr(text), length + 1)
    OrvNumbers = Application.Transpose(Split(Left$(text, length), vbLf))
End Function

' kind: bolt, fillet, butt or weld-group; code: 2017 (in force, unless said) or 2003.
Public Function OrvCheck(kind As String, given As Range, Optional code As String = "") As Variant
    Dim text As String, list As String, length As Long
    LoadOnce
    list = KeysAndValues(given)
    text = String$(8192, vbNullChar)
    length = orv3_check(StrPtr(kind), StrPtr(code), StrPtr(list), StrPtr(text), 8192)
    OrvCheck = Results(length, text)
End Function

Public Function OrvCheckBolt(given As Range) As Variant
    Dim text As String, list As String, length As Long
    LoadOnce
    list = KeysAndValues(given)
    text = String$(8192, vbNullChar)
    length = orv3_check_bolt(StrPtr(list), StrPtr(text), 8192)
    OrvCheckBolt = Results(length, text)
End Function

Public Function OrvCheckFillet(given As Range) As Variant
    Dim text As String, list As String, length As Long
    LoadOnce
    list = KeysAndValues(given)
    text = String$(8192, vbNullChar)
    length = orv3_check_fillet(StrPtr(list), StrPtr(text), 8192)
    OrvCheckFillet = Results(length, text)
End Function

Public Function OrvCheckButt(given As Range) As Variant
    Dim text As String, list As String, length As Long
    LoadOnce
    list = KeysAndValues(given)
    text = String$(8192, vbNullChar)
    length = orv3_check_butt(StrPtr(list), StrPtr(text), 8192)
    OrvCheckButt = Results(length, text)
End Function

' By "2017" or "2003"; by the line "code", else by the edition in force, when it is left out.
Public Function OrvCheckMember(given As Range, Optional code As String = "") As Variant
    Dim text As String, list As String, length As Long
    OpenOnce
    list = KeysAndValues(given)
    text = String$(8192, vbNullChar)
    length = orv3_check_member(StrPtr(code), StrPtr(list), StrPtr(text), 8192)
    OrvCheckMember = Results(length, text)
End Function

' Tables joined by commas, or "all". An empty row between two members: each chosen row passes both.
Public Function OrvChoose(tables As String, given As Range, Optional code As String = "", _
                          Optional top As Long = 10) As Variant
    Dim text As String, list As String, length As Long, lines() As String, cells() As String
    Dim table() As Variant, i As Long, j As Long, count As Long
    OpenOnce
    list = KeysAndValues(given)
    text = String$(65536, vbNullChar)
    length = orv3_choose(StrPtr(tables), StrPtr(code), StrPtr(list), top, StrPtr(text), 65536)
    If length < 0 Then
        OrvChoose = Failure()
        Exit Function
    End If
    lines = Filter(Split(Left$(text, length), vbLf), "row=")
    count = UBound(lines) + 1
    If count = 0 Then
        OrvChoose = "#no section passes"
        Exit Function
    End If
    ReDim table(1 To count, 1 To 6)
    For i = 1 To count
        cells = Split(Mid$(lines(i - 1), 5), ";")
        For j = 1 To 6
            table(i, j) = Value(cells(j - 1))
        Next j
    Next i
    OrvChoose = table
End Function

' Opens the browser and writes the chosen row, a key and a value a line, from the active cell down.
Public Sub OrvPick()
    Dim text As String, length As Long, row As Variant
    OpenOnce
    text = String$(4096, vbNullChar)
    length = orv3_browse(EVERY_TABLE, StrPtr(text), 4096)
    If length = 0 Then Exit Sub
    row = Results(length, text)
    If IsArray(row) Then
        ActiveCell.Resize(UBound(row, 1), 2).Value = row
    Else
        MsgBox row
    End If
End Sub

' Found beside this folder are also the compiler's runtime files.
Private Sub LoadOnce()
    Const ALTERED_SEARCH_PATH As Long = 8
    If m_loaded Then Exit Sub
    If LoadLibraryExW(StrPtr(LIBRARY_FOLDER & "Orv3CalDll.dll"), 0, ALTERED_SEARCH_PATH) = 0 Then
        Err.Raise vbObjectError + 1, "Orv3Cal", LIBRARY_FOLDER & "Orv3CalDll.dll cannot be loaded"
    End If
    m_loaded = True
End Sub

Private Sub OpenOnce()
    LoadOnce
    If m_opened Then Exit Sub
    If orv3_open_data(StrPtr(DATA_FOLDER)) < 0 Then
        Err.Raise vbObjectError + 2, "Orv3Cal", Failure()
    End If
    m_opened = True
End Sub

Private Function Failure() As String
    Dim text As String, length As Long
    text = String$(1024, vbNullChar)
    length = orv3_last_error(StrPtr(text), 1024)
    If length > 1023 Then length = 1023
    Failure = "#" & Left$(text, length)
End Function

Private Function Named(names As String, name As String, values() As Double) As Variant
    Dim list() As String, i As Long
    list = Split(names, " ")
    For i = 0 To UBound(list)
        If list(i) = name Then
            Named = values(i)
            Exit Function
        End If
    Next i
    Named = "#" & name & ": is none of " & names
End Function

' The library's numbers have a decimal point, whatever the locale of the spreadsheet.
Private Function Value(text As String) As Variant
    If text Like "*[!0-9.eE+-]*" Or Not text Like "*#*" Then
        Value = text
    Else
        Value = Val(text)
    End If
End Function

Private Function KeysAndValues(given As Range) As String
    Dim i As Long, cell As Variant, list As String
    For i = 1 To given.Rows.Count
        cell = given.Cells(i, 2).Value
        If VarType(cell) = vbDouble Then cell = Trim$(Str$(cell))
        If given.Cells(i, 1).Value <> "" Then list = list & given.Cells(i, 1).Value & "=" & cell
        list = list & vbLf
    Next i
    KeysAndValues = list
End Function

Private Function Results(length As Long, text As String) As Variant
    Dim lines() As String, table() As Variant, i As Long, at As Long
    If length < 0 Then
        Results = Failure()
        Exit Function
    End If
    lines = Split(Left$(text, length), vbLf)
    ReDim table(1 To UBound(lines) + 1, 1 To 2)
    For i = 0 To UBound(lines)
        at = InStr(lines(i), "=")
        table(i + 1, 1) = Left$(lines(i), at - 1)
        table(i + 1, 2) = Value(Mid$(lines(i), at + 1))
    Next i
    Results = table
End Function
