' Clearing declared ranges; ranges with formulas are kept.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2
Const rdtString = 0, rdtDouble = 1

Dim groups, ranges

Sub Fill()
  Put "B1", "REF"
  Put "B2", "ACME"
  Put "B3", 1.5
  Put "A5:A7", 10
  Put "B5:B6", 20
  sheet.Range("B7").Formula = "=B5+B6"
End Sub

' The cells that hold something.
Function Filled()
  Dim address, text
  text = ""
  For Each address In Array("B1", "B2", "B3", "A5", "A6", "A7", "B5", "B6", "B7")
    If sheet.Range(address).Formula <> "" Then text = text & address & " "
  Next
  Filled = text
End Function

NewScene "Data"
list.DefaultTag = "journal"
list.Add "ref", hdiHeader, rdtString, , , , , , , , , "head"
list.Add "company", hdiHeader, rdtString
list("company").IsSageCompany = True
list.Add "rate", hdiHeaderDetail, rdtDouble
list.Add "amount", hdiDetail, rdtDouble, , , , , , , , , "lines"
list.Add "total", hdiDetail, rdtDouble, , , , , , , , , "lines"
list.Add "missing", hdiDetail, rdtDouble
Define "ref", "$B$1"
Define "company", "$B$2"
Define "rate", "$B$3"
Define "amount", "$A$5:$A$7"
Define "total", "$B$5:$B$7"
list.SetIfRangesExist

Fill
CheckEqual "IsFormula", list.IsFormula("total"), True
CheckEqual "IsFormula of values", list.IsFormula("amount"), False

list.ClearRange "amount"
CheckEqual "ClearRange", Filled(), "B1 B2 B3 B5 B6 B7 "
list.ClearRange "total"
CheckEqual "ClearRange of formulas", Filled(), "B1 B2 B3 "
list.ClearRange "missing"
On Error Resume Next
list.ClearRange "nope"
CheckError "ClearRange of what isn't declared", 5, _
           "Line No.: n ClearRange of Class Module clsInterfaceRangeList Line#:n" & vbCrLf & _
           " Range Name: nope", "Invalid procedure call or argument"
On Error GoTo 0

Fill
list.ClearDetailRanges
CheckEqual "ClearDetailRanges", Filled(), "B1 B2 B3 B5 B6 B7 "

Fill
list.ClearAllRanges
CheckEqual "ClearAllRanges", Filled(), "B5 B6 B7 "
Fill
list.ClearAllRanges True
CheckEqual "ClearAllRanges without headers", Filled(), "B1 B2 B5 B6 B7 "
Fill
list.ClearAllRanges , True
CheckEqual "ClearAllRanges without the company", Filled(), "B2 B5 B6 B7 "
Fill
list.ClearAllRanges False, False, True
CheckEqual "ClearAllRanges without header/detail", Filled(), "B3 B5 B6 B7 "
CheckEqual "DoNotCheckIsFormula at first", list.DoNotCheckIsFormula, False
list.DoNotCheckIsFormula = True
CheckEqual "DoNotCheckIsFormula", list.DoNotCheckIsFormula, True
Fill
list.ClearAllRanges
CheckEqual "ClearAllRanges with formulas", Filled(), ""
list.DoNotCheckIsFormula = False

' --- by tag
list("rate").Tag = "other"
Fill
list.ClearRangesForTag "journal"
CheckEqual "ClearRangesForTag", Filled(), "B3 B5 B6 B7 "
Fill
list.ClearRangesForTag "journal", , , True
CheckEqual "ClearRangesForTag with formulas", Filled(), "B3 "
Set groups = CreateObject("Scripting.Dictionary")
groups.Add "lines", 0
Set ranges = CreateObject("Scripting.Dictionary")
ranges.Add "ref", 0
Fill
list.ClearRangesForTag "journal", groups, ranges, True
CheckEqual "ClearRangesForTag without groups and ranges", Filled(), "B1 B3 A5 A6 A7 B5 B6 B7 "
list.ClearRangesForTag "other", Nothing, Nothing
CheckEqual "ClearRangesForTag that leaves nothing out", Filled(), "B1 A5 A6 A7 B5 B6 B7 "
list.ClearRangesForTag "nobody's"
CheckEqual "ClearRangesForTag of no range", Filled(), "B1 A5 A6 A7 B5 B6 B7 "
