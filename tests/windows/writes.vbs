' Writing values into the cells of declared ranges.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtYesNo = 4

Dim row

' What the library asks of a recordset.
Class Field
  Public Value
End Class

Class Recordset
  Private names
  Private Sub Class_Initialize()
    Set names = CreateObject("Scripting.Dictionary")
  End Sub
  Public Sub Store(name, value)
    Dim one
    Set one = New Field
    one.Value = value
    names.Add name, one
  End Sub
  Public Function Fields(name)
    Set Fields = names.Item(name)
  End Function
End Class

NewScene "Data"
list.Add "text", hdiDetail, rdtString
list.Add "number", hdiDetail, rdtDouble
list.Add "day", hdiDetail, rdtDate
list.Add "yes", hdiDetail, rdtYesNo
list.Add "total", hdiHeaderDetail, rdtDouble
list.Add "missing", hdiDetail, rdtString
list("total").CanBeHeader = True
Define "text", "$A$5:$A$9"
Define "number", "$B$5:$B$9"
Define "day", "$C$5:$C$9"
Define "yes", "$D$5:$D$9"
Define "total", "$E$1"
list.SetIfRangesExist

list.PopulateRange "text", "posted  ", 1
CheckEqual "PopulateRange", Cell("A5"), "posted  "
list.PopulateDoubleRange "number", 12.5, 2
CheckEqual "PopulateDoubleRange", Cell("B6"), 12.5
list.PopulateDoubleRange "number", "1,000.25", 3
CheckEqual "PopulateDoubleRange of a text", Cell("B7"), 1000.25
list.PopulateDateRange "day", #2024-01-31 13:45:00#, 1
CheckEqual "PopulateDateRange", Cell("C5"), DateSerial(2024, 1, 31)
CheckType "PopulateDateRange", Cell("C5"), "Date"
list.PopulateDateRange "day", 0, 1
CheckEqual "PopulateDateRange of no date", Cell("C5"), Empty
list.PopulateYNRange "yes", True, 1
list.PopulateYNRange "yes", 0, 2
CheckEqual "PopulateYNRange of True", Cell("D5"), "Y"
CheckEqual "PopulateYNRange of False", Cell("D6"), "N"
list.PopulateDoubleRange "total", 99, 4
CheckEqual "a range that acts as a header", Cell("E1"), 99

' --- what can't be written
list.PopulateRange "missing", "x", 1
On Error Resume Next
list.PopulateRange "nope", "x", 1
CheckError "a range that isn't declared", 5, _
           "Line No.: n PopulateRange of Class Module clsInterfaceRangeList Line#:n", _
           "Invalid procedure call or argument"
list.PopulateDoubleRange "number", "no number", 1
CheckError "an argument that is no number", 13, "", "Type mismatch"
testing.FailMember "Range.Value", 1004, "The cell is protected."
list.PopulateRange "text", "x", 2
CheckError "a cell that the host keeps", 1004, _
           "Line No.: n Workbook" & vbCrLf & "PopulateRange of Class Module clsInterfaceRangeList Line#:n", _
           "The cell is protected."
testing.ClearFailures
On Error GoTo 0

' --- the switches
CheckEqual "StripSpacesOnDownload at first", list.StripSpacesOnDownload, False
list.StripSpacesOnDownload = True
CheckEqual "StripSpacesOnDownload", list.StripSpacesOnDownload, True
list.PopulateRange "text", " posted  ", 1
CheckEqual "without trailing blanks", Cell("A5"), " posted"
list.StripSpacesOnDownload = False

CheckEqual "LeaveBlankOnPopulate at first", list.LeaveBlankOnPopulate, False
list.LeaveBlankOnPopulate = True
CheckEqual "LeaveBlankOnPopulate", list.LeaveBlankOnPopulate, True
list.PopulateRange "text", "again", 1
list.PopulateRange "text", "new", 2
CheckEqual "a cell with content keeps it", Cell("A5"), " posted"
CheckEqual "a blank cell is written", Cell("A6"), "new"
list.LeaveBlankOnPopulate = False

CheckEqual "LeaveFormulaOnPopulate at first", list.LeaveFormulaOnPopulate, False
list.LeaveFormulaOnPopulate = True
CheckEqual "LeaveFormulaOnPopulate", list.LeaveFormulaOnPopulate, True
sheet.Range("B5").Formula = "=B6*2"
list.PopulateDoubleRange "number", 1, 1
CheckEqual "a formula stays", sheet.Range("B5").Formula, "=B6*2"
list.LeaveFormulaOnPopulate = False
list.PopulateDoubleRange "number", 1, 1
CheckEqual "a formula goes", sheet.Range("B5").Formula, "1"

' --- a row of a recordset
Set row = New Recordset
row.Store "name", " Wages "
row.Store "net", 17.25
row.Store "due", DateSerial(2024, 2, 29)
row.Store "none", Null
list.PopulateRangeRs row, "text", "name", 3
CheckEqual "PopulateRangeRs of a text", Cell("A7"), " Wages "
list.PopulateRangeRs row, "number", "net", 3
CheckEqual "PopulateRangeRs of a number", Cell("B7"), 17.25
list.PopulateRangeRs row, "day", "due", 3
CheckEqual "PopulateRangeRs of a date", Cell("C7"), DateSerial(2024, 2, 29)
list.PopulateRangeRs row, "text", "none", 3
CheckEqual "PopulateRangeRs of Null", Cell("A7"), Empty
list.StripSpacesOnDownload = True
list.PopulateRangeRs row, "text", "name", 4
CheckEqual "PopulateRangeRs without blanks", Cell("A8"), "Wages"
On Error Resume Next
list.PopulateRangeRs sheet, "text", "name", 1
CheckError "PopulateRangeRs of an object without Fields", 438, _
           "Line No.: n PopulateRangeRs of Class Module clsInterfaceRangeList Line#:n", _
           "Object doesn't support this property or method"
list.PopulateRangeRs Nothing, "text", "name", 1
CheckEqual "PopulateRangeRs of nothing", Err.Number, 91
On Error GoTo 0
