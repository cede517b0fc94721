' How a declared name becomes a workbook name, and how workbook names follow their sheets.
Const hdiHeader = 0, hdiDetail = 1, rdtString = 0, rdtDouble = 1

Dim other

Function WorkbookNames()
  Dim name, text
  For Each name In book.Names
    text = text & name.Name & " " & name.RefersTo & ";"
  Next
  WorkbookNames = text
End Function

NewScene "2024 Q1"

' --- the schemes
CheckEqual "plain names at first", list.SheetRangeNames, False
CheckEqual "plain names in force", list.UsingSheetRangeNames, False
CheckEqual "a plain name", list.FullRangeName("amount"), "amount"
list.RangePrefix = "SO_"
CheckEqual "RangePrefix", list.RangePrefix, "SO_"
CheckEqual "a plain name takes no prefix", list.FullRangeName("amount"), "amount"
list.SheetRangeNames = True
CheckEqual "SheetRangeNames", list.SheetRangeNames, True
CheckEqual "UsingSheetRangeNames", list.UsingSheetRangeNames, True
CheckEqual "a name with its sheet and prefix", list.FullRangeName("amount"), "_2024_Q1__SO_amount"
list.RangePrefix = ""
CheckEqual "a name with its sheet", list.FullRangeName("amount"), "_2024_Q1__amount"
On Error Resume Next
list.UsingSheetRangeNames = False
CheckError "what is in force can't be set", 438, "", "Object doesn't support this property or method"
On Error GoTo 0

' --- a sheet without the names of its scheme
list.Add "amount", hdiDetail, rdtDouble
Define "amount", "$A$1:$A$3"
list.SetIfRangesExist
CheckEqual "a plain name on the sheet puts plain names in force", list.UsingSheetRangeNames, False
CheckEqual "the wish stays", list.SheetRangeNames, True

' --- CorrectRangeNames
list.Add "code", hdiDetail, rdtString
Define "Old__code", "$B$1:$B$3"
Define "net_amount", "$C$1:$C$3"
list.CorrectRangeNames
CheckEqual "CorrectRangeNames leaves a name that is the declared one", WorkbookNames(), _
      "_2024_Q1__code ='2024 Q1'!$B$1:$B$3;_2024_Q1__net_amount ='2024 Q1'!$C$1:$C$3;" & _
      "amount ='2024 Q1'!$A$1:$A$3;"
CheckEqual "the sheet scheme is in force afterwards", list.UsingSheetRangeNames, True
book.Names("amount").Delete
list.SetIfRangesExist
CheckEqual "the name with its sheet is found", list.RangeExists("code"), True

' --- RenameNamesForNewSheet
list.RenameNamesForNewSheet "Ledger"
sheet.Name = "Ledger"
CheckEqual "RenameNamesForNewSheet", WorkbookNames(), _
      "_2024_Q1__net_amount =Ledger!$C$1:$C$3;Ledger__code =Ledger!$B$1:$B$3;"
CheckEqual "the list follows", list.FullRangeName("code"), "Ledger__code"

' --- without a sheet
Set other = CreateObject("Rangewerks.clsInterfaceRangeList")
CheckEqual "a plain name needs no sheet", other.FullRangeName("amount"), "amount"
other.SheetRangeNames = True
On Error Resume Next
other.FullRangeName "amount"
CheckError "a sheet's part does", 91, _
           "Line No.: n FullRangeName of Class Module clsInterfaceRangeList Line#:n", _
           "Object variable or With block variable not set"
other.CorrectRangeNames
CheckError "CorrectRangeNames does", 91, _
           "Line No.: n CorrectRangeNames of Class Module clsInterfaceRangeList Line#:n", _
           "Object variable or With block variable not set"
On Error GoTo 0
