' Whether columns have the height that they must have.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2, rdtDouble = 1

Dim size

NewScene "Data"
list.Add "amount", hdiDetail, rdtDouble
list.Add "tax", hdiDetail, rdtDouble
list.Add "rate", hdiHeaderDetail, rdtDouble
list.Add "missing", hdiDetail, rdtDouble
list("tax").GroupRange = "amount"
list("rate").GroupRange = "amount"
list("rate").CanBeHeader = True
Define "amount", "$A$5:$A$9"
Define "tax", "$B$5:$B$9"
Define "rate", "$C$1"
list.SetIfRangesExist

size = 0
CheckEqual "CheckRangeSize", list.CheckRangeSize("amount", 5, size), True
CheckEqual "a size that fits is not told", size, -1
CheckType "the size", size, "Long"
CheckEqual "CheckRangeSize of another", list.CheckRangeSize("amount", 6, size), False
CheckEqual "a size that doesn't fit", size, 5
CheckEqual "CheckRangeSize of what isn't there", list.CheckRangeSize("missing", 6, size), True
On Error Resume Next
list.CheckRangeSize "nope", 6, size
CheckError "CheckRangeSize of what isn't declared", &H80040000, _
           "Line No.: n RangeExists" & vbCrLf & "CheckRangeSize of Class Module clsInterfaceRangeList Line#:n", _
           "RangeExists called on range not on list (nope)"
On Error GoTo 0

list.CheckGroupSizes "amount"
Define "tax", "$B$5:$B$8"
On Error Resume Next
list.CheckGroupSizes "amount"
CheckError "a column of another height", &H80040000, _
           "Line No.: n CheckGroupSizes of Class Module clsInterfaceRangeList Line#:n", _
           "Range tax has size 4 which is different from range amount, size (5)"
list.CheckGroupSizes "missing"
CheckEqual "a group without its master: number", Err.Number, &H80040000
CheckEqual "a group without its master: words", Err.Description, "Range missing is missing"
On Error GoTo 0
