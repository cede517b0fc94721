' Which declared ranges a sheet has, and which declared range lies under a cell.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2
Const rdtString = 0, rdtDouble = 1, rdtDate = 2

Dim area, record, line, other

NewScene "Journal"
list.SheetRangeNames = True
list.Add "period", hdiHeader, rdtString
list.Add "code", hdiDetail, rdtString, , , , , , , True, "nominal"
list.Add "rate", hdiHeaderDetail, rdtDouble, , , , , , , True
list.Add "due", hdiDetail, rdtDate
list("rate").CanBeHeader = True
Define "Journal__period", "$B$1"
Define "Journal__code", "$A$5:$A$9"
Define "Journal__rate", "$B$5"

' --- SetIfRangesExist and RangeExists
CheckEqual "before SetIfRangesExist", list.RangeExists("code"), False
list.SetIfRangesExist
CheckEqual "a header", list.RangeExists("period"), True
CheckEqual "a column", list.RangeExists("CODE"), True
CheckEqual "a range that isn't on the sheet", list.RangeExists("due"), False
CheckEqual "one row acts as a header", list("rate").BecomeHeader, True
CheckEqual "no groups", list.GroupFound, False
list("due").Group = "dates"
list.SetIfRangesExist
CheckEqual "a group", list.GroupFound, True
On Error Resume Next
list.RangeExists "nope"
CheckError "a range that isn't declared", &H80040000, "RangeExists", _
           "RangeExists called on range not on list (nope)"
On Error GoTo 0

' --- GetRange
Set area = list.GetRange("code")
CheckClass "an area", area, "Range"
CheckEqual "its address", area.Address, "$A$5:$A$9"
CheckIs "its sheet is the caller's own object", area.Parent, sheet
On Error Resume Next
Set area = list.GetRange("due")
CheckError "an area that isn't there", 1004, _
           "Line No.: n Workbook" & vbCrLf & "GetRange of Class Module clsInterfaceRangeList Line#:n", _
           "Error finding area on sheet referred to by range: due (Full name:Journal__due)."
On Error GoTo 0

' --- what lies under a cell
CheckEqual "InRange", list.InRange("code", sheet.Range("A9:B12")), True
CheckEqual "InRange beside", list.InRange("code", sheet.Range("B5")), False
CheckEqual "InRange of what isn't there", list.InRange("due", sheet.Range("B5")), False

Set record = list.InAnyRange(sheet.Range("A7"), line)
CheckIs "InAnyRange", record, list("code")
CheckEqual "its line", line, 3
CheckType "its line", line, "Long"
Set record = list.InAnyRange(sheet.Range("D1"), line)
CheckIs "InAnyRange of no range", record, Nothing
CheckEqual "no line", line, -1

CheckEqual "BrowseColumn", list.BrowseColumn(sheet.Range("A6")), "nominal"
CheckEqual "BrowseColumn that is the range's name", list.BrowseColumn(sheet.Range("B5")), "rate"
CheckEqual "BrowseColumn of a range without browse", list.BrowseColumn(sheet.Range("B1")), ""
CheckEqual "BrowseColumn of no range", list.BrowseColumn(sheet.Range("D1")), ""

CheckEqual "CellOffsetInRange", list.CellOffsetInRange(sheet.Range("A9"), "code"), 5
CheckEqual "CellOffsetInRange beside", list.CellOffsetInRange(sheet.Range("A10"), "code"), -1
On Error Resume Next
list.CellOffsetInRange sheet.Range("A5:A6"), "code"
CheckEqual "CellOffsetInRange of two cells", Err.Number, 13
Err.Clear
list.InRange "code", Nothing
CheckEqual "InRange of nothing is no failure", Err.Number, 0
On Error GoTo 0

' --- another sheet
book.Sheets.Add , sheet
Set other = host.ActiveSheet
Set list.ActSheet = other
CheckIs "ActSheet", list.ActSheet, other
CheckEqual "setting it refreshes nothing", list.RangeExists("code"), True
list.SetIfRangesExist
CheckEqual "nothing is on the other sheet", list.RangeExists("code"), False
