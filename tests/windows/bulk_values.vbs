' A whole line of ranges between the sheet and the records.
Const hdiHeader = 0, hdiDetail = 1
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4

Dim i, names

NewScene "Data"
names = Array("text", "number", "day", "whole", "yes")
For i = 0 To 4
  list.Add names(i), hdiDetail, i
  Define names(i), "$" & Chr(65 + i) & "$5:$" & Chr(65 + i) & "$9"
Next
list.Add "head", hdiHeader, rdtString
Define "head", "$G$1"
list.SetIfRangesExist

Put "A5", " Wages "
Put "B5", 12.5
Put "C5", DateSerial(2024, 1, 31)
Put "D5", 7.9
Put "E5", "y"
list.GetValues 1, hdiDetail
CheckEqual "GetValues: text", list("text").Value, "Wages"
CheckEqual "GetValues: number", list("number").Value, 12.5
CheckType "GetValues: number", list("number").Value, "Double"
CheckEqual "GetValues: day", list("day").Value, DateSerial(2024, 1, 31)
CheckEqual "GetValues: whole", list("whole").Value, 7
CheckType "GetValues: whole", list("whole").Value, "Integer"
CheckEqual "GetValues: yes", list("yes").Value, True
For i = 0 To 4
  CheckEqual "GetValues: found " & names(i), list(names(i)).IsValueFound, True
Next
CheckEqual "GetValues of the other kind isn't read", list("head").Value, 0

list.GetValues 2, hdiDetail
CheckEqual "a blank line: text", list("text").Value, ""
CheckEqual "a blank line: number", list("number").Value, 0
CheckEqual "a blank line: day", list("day").Value, CDate(0)
CheckEqual "a blank line: yes", list("yes").Value, False
For i = 0 To 4
  CheckEqual "a blank line: found " & names(i), list(names(i)).IsValueFound, False
Next

list("number").IsDownload = True
list("number").Value = "kept"
list.GetValues 1, hdiDetail
CheckEqual "a download isn't read", list("number").Value, "kept"

Put "D7", "none"
Put "B7", "none"
list("number").IsDownload = False
On Error Resume Next
list.GetValues 3, hdiDetail
CheckError "a bad cell", &H8004157C, "Line No.: n Line No.: n GetValRange of Class Module clsInterfaceRangeList Line#:n" & vbCrLf & _
           "GetValues of Class Module clsInterfaceRangeList Line#:n", "Invalid data in range '' (number)"
On Error GoTo 0
CheckEqual "a bad cell: InvalidRange", list.InvalidRange, "number"
CheckEqual "a bad cell: InvalidRow", list.InvalidRow, 3

list("text").Value = "Rent"
list("number").Value = "1,000.5"
list("day").Value = DateSerial(2024, 2, 29)
list("whole").Value = 12
list("yes").Value = False
list.PutValues 4, hdiDetail
CheckEqual "PutValues: text", Cell("A8"), "Rent"
CheckEqual "PutValues: number", Cell("B8"), 1000.5
CheckEqual "PutValues: day", Cell("C8"), DateSerial(2024, 2, 29)
CheckEqual "PutValues: whole", Cell("D8"), 12
CheckEqual "PutValues: yes", Cell("E8"), "N"
CheckEqual "PutValues of the other kind isn't written", Cell("G1"), Empty
list("head").Value = "JNL-7"
list.PutValues 1, hdiHeader
CheckEqual "PutValues of headers", Cell("G1"), "JNL-7"
list("number").Value = "no number"
On Error Resume Next
list.PutValues 4, hdiDetail
CheckError "PutValues of what isn't of the type", 13, "", "Type mismatch"
On Error GoTo 0
