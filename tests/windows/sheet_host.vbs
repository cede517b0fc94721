' The host for trying and testing, as a script has it.
Dim added, cells, entry, found, other, shape, value

Set host = CreateObject("SheetHost.Application")
CheckClass "the program", host, "Application"
CheckEqual "no workbook at first", host.Workbooks.Count, 0
Set testing = host.Testing
CheckClass "Testing", testing, "Testing"

' --- a scene
Set book = host.Workbooks.Add
CheckClass "a workbook", book, "Workbook"
Set sheet = host.ActiveSheet
CheckEqual "its sheet", sheet.Name, "Sheet1"
Set added = book.Sheets.Add
CheckEqual "Sheets.Add: the name", added.Name, "Sheet2"
CheckEqual "Sheets.Add: ahead of the sheet in front", added.Index, 1
CheckIs "Sheets.Add: in front", host.ActiveSheet, added
CheckEqual "Sheets.Add: After", book.Sheets.Add(, sheet).Index, 3
CheckEqual "Sheets.Add: Before", book.Sheets.Add(sheet).Index, 2
sheet.Activate
CheckIs "Activate", host.ActiveSheet, sheet

sheet.Range("B2").Value = "JNL-7"
sheet.Range("B3") = 7
host.Cells(5, 1).Value = 12.5
host.Cells(6, 1) = 13
host.Range("A7") = "x"
CheckEqual "Range.Value", sheet.Range("B2").Value, "JNL-7"
CheckEqual "the default member of a range", sheet.Range("B3") + 0, 7
CheckEqual "Application.Cells", sheet.Range("A5").Value, 12.5
CheckEqual "Application.Cells without Value", sheet.Range("A6").Value, 13
CheckEqual "Application.Range without Value", sheet.Cells(7, 1).Value, "x"
sheet.Range("A5:A6").NumberFormat = "0.00"
CheckEqual "NumberFormat", sheet.Range("A5:A6").NumberFormat, "0.00"
CheckEqual "NumberFormat of mixed cells", sheet.Range("A5:A7").NumberFormat, Null
book.Names.Add "Sheet1__amount", "=Sheet1!$A$5:$A$7"
CheckEqual "a name", sheet.Range("Sheet1__amount").Address, "$A$5:$A$7"
found = ""
For Each entry In book.Names
  found = found & entry.Name & " " & entry
Next
CheckEqual "a walk over names", found, "Sheet1__amount =Sheet1!$A$5:$A$7"
found = ""
For Each entry In sheet.Range("A5:A7")
  found = found & " " & entry.Value
Next
CheckEqual "a walk over cells", found, " 12.5 13 x"

' --- calls
testing.ResetCalls
CheckEqual "LogCalls at first", testing.LogCalls, False
value = sheet.Name
CheckEqual "Calls without LogCalls", testing.Calls, ""
CheckEqual "CallCount without LogCalls", testing.CallCount, 1
testing.LogCalls = True
CheckEqual "LogCalls", testing.LogCalls, True
testing.ResetCalls
Set cells = sheet.Range("Sheet1__amount")
value = cells.Cells(1, 1).Value
cells.Item(2) = 14
cells.Select
CheckEqual "Calls", host.Testing.Calls, "Worksheet.Range get ""Sheet1__amount""" & vbCrLf & _
      "Range.Cells get 1, 1" & vbCrLf & "Range.Value get" & vbCrLf & "Range.Item let 2, 14" & vbCrLf & _
      "Range.Select call"
CheckEqual "CallCount", testing.CallCount, 5
CheckEqual "CallCount of one member", testing.CallCount("Range.Value"), 1
testing.ResetCalls
CheckEqual "CallCount after ResetCalls", testing.CallCount, 0
CheckEqual "Calls after ResetCalls", testing.Calls, ""

' --- failures on request
testing.FailMember "Range.Select", 1004, "can't select"
On Error Resume Next
cells.Select
CheckError "FailMember", 1004, "Workbook", "can't select"
cells.Select
CheckError "FailMember again", 1004, "Workbook", "can't select"
testing.ClearFailures
cells.Select
CheckEqual "ClearFailures", Err.Number, 0
testing.FailCall 2, 50290, "busy"
value = sheet.Name
CheckEqual "FailCall: the call before", Err.Number, 0
value = sheet.Name
CheckError "FailCall", 50290, "Workbook", "busy"
value = sheet.Name
CheckEqual "FailCall: the call after", Err.Number, 0
testing.FailCall 0, 1004, ""
CheckEqual "FailCall without a call", Err.Number, 5
Err.Clear
testing.FailMember "Select", 1004, ""
CheckEqual "FailMember without a type", Err.Number, 5
Err.Clear
On Error GoTo 0

' --- what the object model can't set
sheet.Range("C1").Formula = "=A5*2"
testing.SetShownValue sheet.Range("C1"), 25
CheckEqual "SetShownValue", sheet.Range("C1").Value, 25
CheckEqual "a formula", sheet.Range("C1").HasFormula, True
testing.SetErrorValue sheet.Range("C2"), 2007
CheckEqual "SetErrorValue", VarType(sheet.Range("C2").Value), vbError
testing.SetInternational 32, 1
CheckEqual "SetInternational", host.International(32), 1
testing.SetVersion "11.0"
CheckEqual "SetVersion", host.Version, "11.0"

CheckEqual "TrustVBProject at first", testing.TrustVBProject, False
On Error Resume Next
Set value = book.VBProject
CheckError "VBProject", 1004, "Workbook", "Programmatic access to Visual Basic Project is not trusted"
testing.TrustVBProject = True
CheckEqual "TrustVBProject", testing.TrustVBProject, True
On Error GoTo 0
CheckEqual "VBProject when trusted", TypeName(book.VBProject), "VBProject"

testing.SelectShape
Set shape = host.Selection
CheckClass "a selected shape", shape, "Rectangle"
On Error Resume Next
value = shape.Rows.Count
CheckEqual "Rows of a shape", Err.Number, 438
Err.Clear
On Error GoTo 0
sheet.Range("C3").Select
CheckClass "selected cells", host.Selection, "Range"
CheckEqual "their address", host.Selection.Address, "$C$3"

' --- another program
Set other = CreateObject("SheetHost.Application")
CheckEqual "another program has its own workbooks", other.Workbooks.Count, 0
CheckEqual "and its own version", other.Version, "16.0"
CheckEqual "and its own log", other.Testing.CallCount, 3
