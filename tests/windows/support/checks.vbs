' What a test script checks with. The runner puts this in front of each script and Finish behind it.
'
'   NewScene "Sheet1"
'   CheckEqual "a list is empty at first", list.Count, 0
'   On Error Resume Next
'   list.Item 5
'   CheckError "there is no fifth", 9, "", "Subscript out of range"
'   On Error GoTo 0
'
' Ignore errors for no longer than that: outside, an error ends the script and so fails the test.
Option Explicit

Dim checksDone, checksFailed
checksDone = 0
checksFailed = 0

' A value as a text that tells its kind too: numbers, "texts", Null and Empty are never equal.
Function Shown(value)
  If IsObject(value) Then
    Shown = "an object"
  ElseIf IsNull(value) Then
    Shown = "Null"
  ElseIf IsEmpty(value) Then
    Shown = "Empty"
  ElseIf VarType(value) = vbString Then
    Shown = """" & value & """"
  Else
    Shown = CStr(value)
  End If
End Function

Sub Check(name, passed)
  checksDone = checksDone + 1
  If passed Then
    WScript.Echo "ok     " & name
  Else
    checksFailed = checksFailed + 1
    WScript.Echo "FAILED " & name
  End If
End Sub

Sub CheckEqual(name, actual, expected)
  Dim isEqual
  isEqual = Shown(actual) = Shown(expected)
  Check name, isEqual
  If Not isEqual Then
    WScript.Echo "       is " & Shown(actual)
    WScript.Echo "   wanted " & Shown(expected)
  End If
End Sub

' The same object, or none where none is wanted.
Sub CheckIs(name, actual, expected)
  Check name, actual Is expected
End Sub

' The exact type of a value, which CheckEqual doesn't tell for numbers.
Sub CheckType(name, actual, expected)
  CheckEqual name & ": type", TypeName(actual), expected
End Sub

' The class of an object. Some script hosts name its interface, which has a "_" in front.
Sub CheckClass(name, actual, expected)
  Check name & " is a " & expected, TypeName(actual) = expected Or TypeName(actual) = "_" & expected
End Sub

' A source with "n" for each line number, because those move with the code.
Function WithoutLines(source)
  Dim pattern
  Set pattern = New RegExp
  pattern.Global = True
  pattern.Pattern = "(Line No\.: |Line#:)[1-9][0-9]*"
  WithoutLines = pattern.Replace(source, "$1n")
End Function

' That the step before failed with this error, which is clear again then.
Sub CheckError(name, number, source, description)
  Dim isNumber, isSource, isDescription
  isNumber = Err.Number
  isSource = Err.Source
  isDescription = Err.Description
  Err.Clear
  CheckEqual name & ": number", isNumber, number
  CheckEqual name & ": source", WithoutLines(isSource), source
  CheckEqual name & ": description", isDescription, description
End Sub

Sub Finish()
  If Err.Number <> 0 Then Check "no error is left: " & Err.Number & " " & Err.Description, False
  WScript.Echo "END " & checksDone & " checks, " & checksFailed & " failed"
End Sub

' --- the scene of most scripts -----------------------------------------------------------------------

Dim host, book, sheet, testing, list

' A program with one workbook, whose sheet gets a name, and a list that works on it.
Sub NewScene(sheetName)
  Set host = CreateObject("SheetHost.Application")
  Set testing = host.Testing
  Set book = host.Workbooks.Add
  Set sheet = host.ActiveSheet
  sheet.Name = sheetName
  Set list = CreateObject("Rangewerks.clsInterfaceRangeList")
  Set list.ActSheet = sheet
End Sub

' Names cells of the scene's sheet; the address has its dollar signs.
Sub Define(name, address)
  book.Names.Add name, "='" & sheet.Name & "'!" & address
End Sub

Sub Put(address, value)
  sheet.Range(address).Value = value
End Sub

Function Cell(address)
  Cell = sheet.Range(address).Value
End Function
