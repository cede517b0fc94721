' How a script's arguments reach the library and what it assigns comes back: by-reference arguments of
' every type, omitted ones, and variables that hold another kind beforehand.
Const hdiHeader = 0, hdiDetail = 1
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4

Dim number, whole, flag, text, day, line, size, i, values

Sub Read(variable, member)
  Select Case member
    Case "GetValRange"
      list.GetValRange "amount", variable, 1
    Case "GetIntRange"
      list.GetIntRange "amount", variable, 1
    Case "GetStrRange"
      list.GetStrRange "amount", variable, 1
    Case "GetDateRange"
      list.GetDateRange "due", variable, 1
    Case "GetYNRange"
      list.GetYNRange "yes", variable, 1
  End Select
End Sub

NewScene "Data"
list.Add "amount", hdiDetail, rdtDouble
list.Add "due", hdiDetail, rdtDate
list.Add "yes", hdiDetail, rdtYesNo
Define "amount", "$A$5:$A$9"
Define "due", "$B$5:$B$9"
Define "yes", "$C$5:$C$9"
list.SetIfRangesExist
Put "A5", 12.5
Put "B5", DateSerial(2024, 1, 31)
Put "C5", "Y"

' --- a variable that was never assigned to takes the type of the argument
list.GetValRange "amount", number, 1
CheckType "Double", number, "Double"
list.GetIntRange "amount", whole, 1
CheckType "Integer", whole, "Integer"
list.GetStrRange "amount", text, 1
CheckType "String", text, "String"
list.GetDateRange "due", day, 1
CheckType "Date", day, "Date"
list.GetYNRange "yes", flag, 1
CheckType "Boolean", flag, "Boolean"
list.InAnyRange sheet.Range("A6"), line
CheckType "Long", line, "Long"
list.CheckRangeSize "amount", 4, size
CheckType "Long again", size, "Long"
CheckEqual "their values", number & " " & whole & " " & text & " " & day & " " & flag & " " & line & " " & size, _
           "12.5 12 12.5 1/31/2024 True 2 5"

' --- one that holds another kind is converted on the way in and takes the type on the way out
number = "7"
list.GetValRange "amount", number, 1
CheckType "a text before", number, "Double"
whole = True
list.GetIntRange "amount", whole, 1
CheckType "a boolean before", whole, "Integer"
text = 5
list.GetStrRange "amount", text, 1
CheckType "a number before", text, "String"
line = 7.6
list.InAnyRange sheet.Range("D1"), line
CheckType "a double before", line, "Long"
CheckEqual "a double before: value", line, -1
On Error Resume Next
number = "no number"
list.GetValRange "amount", number, 1
CheckError "what doesn't convert to the argument's type", 13, "", "Type mismatch"
On Error GoTo 0
CheckEqual "it stays as it was", number, "no number"

' --- through a Sub's own argument, in an array, and as an expression
number = 0
Read number, "GetValRange"
CheckEqual "through an argument", number, 12.5
Read day, "GetDateRange"
CheckEqual "through an argument: date", day, DateSerial(2024, 1, 31)
Read flag, "GetYNRange"
CheckEqual "through an argument: boolean", flag, True
Read text, "GetStrRange"
CheckEqual "through an argument: text", text, "12.5"
Read whole, "GetIntRange"
CheckEqual "through an argument: whole", whole, 12
CheckEqual "an expression has nowhere to write to", list.GetValRange("amount", (number), 1), True
CheckEqual "a constant neither", list.GetValRange("amount", 0, 1), True

' --- what is assigned before a failure stays
Put "A6", 0.125
list.ValidateDecimalPlaces = True
number = 0
On Error Resume Next
list.GetValRange "amount", number, 2
CheckEqual "a failure", Err.Number, &H8004157D
Err.Clear
On Error GoTo 0
CheckEqual "after a failure", number, 0.125

' --- numbers of other kinds, and lines as texts
values = Array(1, CLng(1), CByte(1), 1.0, CSng(1), CCur(1), "1", True)
For i = 0 To 6
  number = 0
  list.GetValRange "amount", number, values(i)
  CheckEqual "a line as " & TypeName(values(i)), number, 12.5
Next
CheckEqual "a money amount", list.Add("money", hdiDetail, rdtDouble, , , , , CCur(12.34)).Value, 12.34
CheckType "a money amount arrives as", list("money").Value, "Double"

' --- arguments that are missing, too many, or of no use
On Error Resume Next
list.GetValRange "amount"
CheckError "too few", 449, "", "Argument not optional"
list.GetValRange "amount", number, 1, 2
CheckError "too many", 450, "", "Wrong number of arguments or invalid property assignment"
list.GetValRange "amount", number, Null
CheckError "Null", 94, "", "Invalid use of Null"
list.GetValRange "amount", number, "first"
CheckError "a text that is no number", 13, "", "Type mismatch"
list.GetValRange "amount", number, 3000000000
CheckError "a number beyond 32 bits", 6, "", "Overflow"
list.InRange "amount", "A5"
CheckEqual "a text for an object", Err.Number, 424
Err.Clear
list.Add , hdiDetail, rdtDouble
CheckError "a required one left out", 449, "", "Argument not optional"
list.Item
CheckError "a property without its index", 449, "", "Argument not optional"
On Error GoTo 0
