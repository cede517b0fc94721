' Reading cells by type: values through by-reference arguments, and which cell was bad.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4
Const errRwkInvalidRangeValue = &H8004157C, errPLInvalidDecimalPlaces = &H8004157D

Dim number, whole, flag, text, day

NewScene "Data"
list.Add "rate", hdiHeader, rdtDouble, , , "Exchange rate"
list.Add "amount", hdiDetail, rdtDouble, , , "Net amount"
list.Add "qty", hdiDetail, rdtInteger, , , "Quantity"
list.Add "reverse", hdiDetail, rdtYesNo
list.Add "code", hdiDetail, rdtString, , , , 4
list.Add "due", hdiDetail, rdtDate
list.Add "missing", hdiDetail, rdtString
Define "rate", "$B$1"
Define "amount", "$A$5:$A$9"
Define "qty", "$B$5:$B$9"
Define "reverse", "$C$5:$C$9"
Define "code", "$D$5:$D$9"
Define "due", "$E$5:$E$9"
list.SetIfRangesExist

' --- before a read has failed
CheckEqual "InvalidRange at first", list.InvalidRange, ""
On Error Resume Next
number = list.InvalidRow
CheckError "InvalidRow before a failure", &H80040000, _
           "Line No.: n InvalidRangeType of Class Module clsInterfaceRangeList Line#:n", _
           "No invalid range set"
number = list.InvalidRangeType
CheckError "InvalidRangeType before a failure", &H80040000, _
           "Line No.: n InvalidRangeType of Class Module clsInterfaceRangeList Line#:n", _
           "No invalid range set"
On Error GoTo 0

' --- numbers
Put "A5", 1234.56
Put "A6", "'  1,234.50 "
CheckEqual "GetValRange", list.GetValRange("amount", number, 1), True
CheckEqual "a number", number, 1234.56
CheckType "a number", number, "Double"
CheckEqual "a number in a text", list.GetValRange("amount", number, 2), True
CheckEqual "a number in a text: value", number, 1234.5
CheckEqual "a blank cell", list.GetValRange("amount", number, 3), False
CheckEqual "a blank cell: value", number, 0
number = 5
CheckEqual "a range that isn't there", list.GetValRange("missing", number, 1), False
CheckEqual "a range that isn't there: value", number, 0
Put "A8", "to follow"
number = 7
On Error Resume Next
list.GetValRange "amount", number, 4
CheckError "a text", errRwkInvalidRangeValue, _
           "Line No.: n GetValRange of Class Module clsInterfaceRangeList Line#:n", "Invalid data in range 'Net amount' (amount)"
On Error GoTo 0
CheckEqual "the bad cell: InvalidRange", list.InvalidRange, "amount"
CheckEqual "the bad cell: InvalidRow", list.InvalidRow, 4
CheckEqual "the bad cell: InvalidRangeType", list.InvalidRangeType, hdiDetail
Put "B1", "free"
On Error Resume Next
list.GetValRange "rate", number, 1
CheckEqual "a bad header", Err.Number, errRwkInvalidRangeValue
On Error GoTo 0
CheckEqual "a bad header: InvalidRow", list.InvalidRow, 0
CheckEqual "a bad header: InvalidRangeType", list.InvalidRangeType, hdiHeader

CheckEqual "ValidateDecimalPlaces at first", list.ValidateDecimalPlaces, False
Put "A9", 0.125
CheckEqual "any number of places", list.GetValRange("amount", number, 5), True
list.ValidateDecimalPlaces = True
CheckEqual "ValidateDecimalPlaces", list.ValidateDecimalPlaces, True
On Error Resume Next
list.GetValRange "amount", number, 5
CheckError "too many places", errPLInvalidDecimalPlaces, _
           "Line No.: n GetValRange of Class Module clsInterfaceRangeList Line#:n", "More than 2 Decimal places are not allowed"
On Error GoTo 0
CheckEqual "the value is there all the same", number, 0.125
list("amount").DecimalPlaces = 3
CheckEqual "as many places as declared", list.GetValRange("amount", number, 5), True

' --- whole numbers
Put "B5", 12.9
Put "B6", "'7 boxes"
Put "B7", 40000
CheckEqual "GetIntRange", list.GetIntRange("qty", whole, 1), True
CheckEqual "a whole number", whole, 12
CheckType "a whole number", whole, "Integer"
list.GetIntRange "qty", whole, 2
CheckEqual "the leading number of a text", whole, 7
On Error Resume Next
list.GetIntRange "qty", whole, 3
CheckError "beyond 16 bits", 6, "Line No.: n GetIntRange of Class Module clsInterfaceRangeList Line#:n", "Overflow"
On Error GoTo 0
CheckEqual "beyond 16 bits: InvalidRange", list.InvalidRange, "qty"

' --- yes and no
Put "C5", "yes"
Put "C6", "N"
Put "C7", "perhaps"
CheckEqual "GetYNRange", list.GetYNRange("reverse", flag, 1), True
CheckEqual "yes", flag, True
CheckType "yes", flag, "Boolean"
CheckEqual "no is found", list.GetYNRange("reverse", flag, 2), True
CheckEqual "no", flag, False
On Error Resume Next
list.GetYNRange "reverse", flag, 3
CheckError "neither", errRwkInvalidRangeValue, _
           "Line No.: n GetYNRange of Class Module clsInterfaceRangeList Line#:n", "Invalid entry in Y/N range"
On Error GoTo 0

' --- texts
Put "D5", "  4000-Wages "
CheckEqual "GetStrRange", list.GetStrRange("code", text, 1), True
CheckEqual "a text is trimmed and cut", text, "4000"
CheckType "a text", text, "String"
CheckEqual "a blank text", list.GetStrRange("code", text, 2), False
CheckEqual "a blank text: value", text, ""
CheckEqual "GetStrRangeBlk", list.GetStrRangeBlk("code", 1), "4000"
CheckEqual "GetStrRangeBlk of what isn't there", list.GetStrRangeBlk("missing", 1), ""

' --- dates
Put "E5", DateSerial(2024, 1, 31)
Put "E6", "'12/31/2024"
Put "E7", "'30/30/2024"
CheckEqual "GetDateRange", list.GetDateRange("due", day, 1), True
CheckEqual "a date", day, DateSerial(2024, 1, 31)
CheckType "a date", day, "Date"
list.GetDateRange "due", day, 2
CheckEqual "a date in a text", day, DateSerial(2024, 12, 31)
On Error Resume Next
list.GetDateRange "due", day, 3
CheckError "no date", errRwkInvalidRangeValue, _
           "Line No.: n GetDateRange of Class Module clsInterfaceRangeList Line#:n", "Invalid date in range due"
On Error GoTo 0
CheckEqual "no date: InvalidRange", list.InvalidRange, "due"
CheckEqual "no date: InvalidRow", list.InvalidRow, 3

' --- what counts as found
CheckEqual "BlankRangeIsThere at first", list.BlankRangeIsThere, False
list.BlankRangeIsThere = True
CheckEqual "BlankRangeIsThere", list.BlankRangeIsThere, True
CheckEqual "a blank number counts", list.GetValRange("amount", number, 3), True
CheckEqual "a blank text counts", list.GetStrRange("code", text, 2), True
list.BlankRangeIsThere = False
list("code").BlankValueIsFound = True
CheckEqual "for one range", list.GetStrRange("code", text, 2), True
CheckEqual "and no other", list.GetValRange("amount", number, 3), False

' --- a range that acts as a header reads its one cell
Put "A1", 3
list.Add "discount", hdiHeaderDetail, rdtDouble
list("discount").CanBeHeader = True
Define "discount", "$A$1"
list.SetIfRangesExist
list.GetValRange "discount", number, 4
CheckEqual "as a header", number, 3
