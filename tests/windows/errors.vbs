' Errors with number, source and description: of the library, of the host behind it, and of a class of
' the script in the host's place.
Const hdiHeader = 0, hdiDetail = 1, rdtDouble = 1

Class BrokenSheet
  Public Property Get Name()
    Err.Raise vbObjectError + 77, "BrokenSheet", "no name today"
  End Property
End Class

Dim broken, found, i

NewScene "Data"
list.Add "amount", hdiDetail, rdtDouble, , , "Net amount"
Define "amount", "$A$5:$A$9"
list.SetIfRangesExist

' --- an error is what it was, whatever came before
On Error Resume Next
Set found = list.Item(9)
CheckError "one error", 9, "", "Subscript out of range"
Set found = list.Item("nope")
CheckError "the next", 5, "", "Invalid procedure call or argument"
found = list.Count
CheckEqual "a call that succeeds leaves none", Err.Number, 0
list.RangeExists "nope"
CheckError "a number of the library's own", -2147221504, "RangeExists", _
           "RangeExists called on range not on list (nope)"

' --- the host's errors
testing.FailMember "Range.Cells", 1004, "Application-defined or object-defined error"
list.GetValRange "amount", i, 1
CheckError "1004, as Excel gives it", 1004, "Line No.: n Workbook" & vbCrLf & _
           "GetValRange of Class Module clsInterfaceRangeList Line#:n", "Application-defined or object-defined error"
testing.ClearFailures
testing.FailMember "Range.Cells", &H800A01A8, "Object required"
list.GetValRange "amount", i, 1
CheckEqual "a run-time error given as a result code", Err.Number, 424
Err.Clear
testing.ClearFailures
testing.FailMember "Range.Cells", &H80040200, "of the host's own"
list.GetValRange "amount", i, 1
CheckError "a number of the host's own", &H80040200, "Line No.: n Workbook" & vbCrLf & _
           "GetValRange of Class Module clsInterfaceRangeList Line#:n", "of the host's own"
testing.ClearFailures

' --- a class of the script as the sheet (Wine's script host tells of its errors the number alone)
Set broken = New BrokenSheet
Set list.ActSheet = broken
list.SheetRangeNames = True
found = list.FullRangeName("amount")
CheckEqual "the script's own number", Err.Number, vbObjectError + 77
Err.Clear
list.SheetRangeNames = False
list.SetIfRangesExist
CheckEqual "a sheet without a workbook", Err.Number, &H80040000
CheckEqual "a sheet without a workbook: words", Err.Description, _
           "Worksheet object error when checking if ranges exists on sheet " & vbCrLf & _
           "Object doesn't support this property or method"
Err.Clear

' --- texts beyond ASCII
list.RangeExists "Betr" & Chr(228) & "ge"
CheckEqual "an umlaut in the words", Err.Description, _
           "RangeExists called on range not on list (Betr" & Chr(228) & "ge)"
Err.Clear
On Error GoTo 0
