' Whether the layout of a sheet's ranges is sound.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2, rdtString = 0, rdtDouble = 1
Const kSource = "Line No.: n Line No.: n ValidateRanges of Class Module ExcelFunctions Line#:n"

Dim functions

Sub CheckRefused(what, description)
  On Error Resume Next
  list.ValidateRanges
  CheckError what, &H80040000, kSource & vbCrLf & "ValidateRanges of Class Module clsInterfaceRangeList Line#:n", description
End Sub

NewScene "Data"
Set functions = CreateObject("Rangewerks.ExcelFunctions")
list.Add "period", hdiHeader, rdtString, True
list.Add "nominal_code", hdiDetail, rdtString, True
list.Add "amount", hdiDetail, rdtDouble, True
list.SetIfRangesExist
CheckRefused "a range that must be there", "Range 'period' must be defined."
Define "period", "$B$1"
Define "amount", "$B$5:$B$9"
list.SetIfRangesExist
CheckRefused "no code", "Must define either a nominal_code or project_code and expense_code"
Define "nominal_code", "$A$5:$A$9"
list.SetIfRangesExist
CheckEqual "a sound layout", list.ValidateRanges(), True
CheckEqual "a sound layout, through ExcelFunctions", functions.ValidateRanges(list, sheet), True
CheckEqual "the sheet given isn't used", functions.ValidateRanges(list, Nothing), True

Define "amount", "$B$5:$B$8"
list.SetIfRangesExist
CheckRefused "columns of different heights", _
  "Detail Ranges with different number of rows were found" & vbCrLf & "(First different found:amount)" & _
  vbCrLf & "Range : nominal_code - No. of Rows: 5" & vbCrLf & "Range : amount - No. of Rows: 4"
Define "amount", "$B$5:$C$9"
list.SetIfRangesExist
CheckRefused "two columns", "Range amount has more than one column"
On Error Resume Next
functions.ValidateRanges list, sheet
CheckError "two columns, through ExcelFunctions", &H80040000, _
           "Line No.: n ValidateRanges of Class Module ExcelFunctions Line#:n", "Range amount has more than one column"
functions.ValidateRanges Nothing, sheet
CheckError "no list", 91, "Line No.: n ValidateRanges of Class Module ExcelFunctions Line#:n", _
           "Object variable or With block variable not set"
functions.ValidateRanges sheet, sheet
CheckError "no list but another object", 13, "", "Type mismatch"
On Error GoTo 0
Define "amount", "$B$5:$B$9"
Define "period", "$B$1:$B$2"
list.SetIfRangesExist
CheckRefused "a header of two rows", "Header range period has more than one row"
