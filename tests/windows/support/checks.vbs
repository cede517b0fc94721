' What a test script checks with. The runner puts this in front of each script and Finish behind it.
'
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

' That the step before failed with this error, which is clear again then.
Sub CheckError(name, number, source, description)
  Dim isNumber, isSource, isDescription
  isNumber = Err.Number
  isSource = Err.Source
  isDescription = Err.Description
  Err.Clear
  CheckEqual name & ": number", isNumber, number
  CheckEqual name & ": source", isSource, source
  CheckEqual name & ": description", isDescription, description
End Sub

Sub Finish()
  If Err.Number <> 0 Then Check "no error is left: " & Err.Number & " " & Err.Description, False
  WScript.Echo "END " & checksDone & " checks, " & checksFailed & " failed"
End Sub
