' Turning selected cells into a declared range, with its name, format, validation, message and heading.
Const hdiHeader = 0, hdiDetail = 1, rdtString = 0, rdtDouble = 1, rdtYesNo = 4
Const xlContinuous = 1, xlDouble = -4119, xlRight = -4152
Const xlEdgeBottom = 9, xlEdgeLeft = 7

Dim properties, record, area, entry

Function NewProperties(name)
  Set NewProperties = CreateObject("Rangewerks.clsRangeProperties")
  NewProperties.RangeName = name
End Function

NewScene "Data"
list.SheetRangeNames = True
list.Add("net_amount", hdiDetail, rdtDouble, , , "Net amount").DecimalPlaces = 3
list.Add "code", hdiDetail, rdtString, , , "Nominal code", 8
list.Add "period", hdiHeader, rdtString, , , "Period", 6
list.Add "reverse", hdiDetail, rdtYesNo

' --- the form at first
Set properties = CreateObject("Rangewerks.clsRangeProperties")
CheckClass "the form", properties, "clsRangeProperties"
For Each entry In Array(properties.WrapHeaderText, properties.DoNotAddBoxLinesIfColoured, _
                        properties.AddLineAtBottomOfRange, properties.BoldRangeHeadings, _
                        properties.AddRangeBorder, properties.AddHeadingsBorder, properties.AddColumnHeadings, _
                        properties.AddToolTips, properties.AddValidation, properties.AddFormat)
  CheckEqual "a yes or no at first", entry, False
Next
For Each entry In Array(properties.SetForceColumnWidth, properties.HeadingColour, properties.RangeColour, _
                        properties.AlternateRangeColour)
  CheckEqual "nothing chosen at first", entry, -1
Next
CheckEqual "RowsToAdd at first", properties.RowsToAdd, 0
CheckEqual "RangeHeading at first", properties.RangeHeading, ""
CheckEqual "RangeName at first", properties.RangeName, ""
CheckIs "RangeArea at first", properties.RangeArea, Nothing

' --- a plain placing
properties.RangeName = "code"
CheckEqual "RangeName", properties.RangeName, "code"
CheckEqual "the name is that of ExcelRange", properties.ExcelRange.RangeName, "code"
Set area = sheet.Range("A5:A9")
CheckIs "AddRangeToSpreadsheet returns the record", list.AddRangeToSpreadsheet(area, properties), list("code")
CheckEqual "the name on the sheet", sheet.Range("Data__code").Address, "$A$5:$A$9"
CheckEqual "it counts as there", list.RangeExists("code"), True
CheckEqual "the format stays", sheet.Range("A5").NumberFormat, "General"
CheckEqual "the selection", area.Address, "$A$5:$A$9"

' --- everything that can be added
Set properties = NewProperties("net_amount")
properties.RowsToAdd = 4
properties.AddFormat = True
properties.AddValidation = True
properties.AddToolTips = True
properties.AddColumnHeadings = True
properties.BoldRangeHeadings = True
properties.AddHeadingsBorder = True
properties.AddRangeBorder = True
properties.WrapHeaderText = True
properties.HeadingColour = &H00FF00&
properties.RangeColour = &HCCFFFF
properties.AlternateRangeColour = &HFFFFCC
properties.SetForceColumnWidth = 14
properties.AddLineAtBottomOfRange = True
properties.DoNotAddBoxLinesIfColoured = True
list.AddNumberValidation = True
Set area = sheet.Range("B5")
list.AddRangeToSpreadsheet area, properties
CheckEqual "the caller's variable is the area that was placed", area.Address, "$B$5:$B$8"
CheckEqual "RowsToAdd", sheet.Range("Data__net_amount").Address, "$B$5:$B$8"
CheckEqual "NumberFormat", area.NumberFormat, "0.000_ ;-0.000"
CheckEqual "HorizontalAlignment", area.HorizontalAlignment, xlRight
CheckEqual "the rule's words", area.Validation.ErrorMessage, "net_amount can only have numbers entered"
CheckEqual "the message's title", area.Validation.InputTitle, "net_amount"
CheckEqual "the message", area.Validation.InputMessage, "Net amount" & vbLf & "Enter a number"
CheckEqual "the heading", Cell("B4"), "net amount"
CheckEqual "the heading is kept in the form", properties.RangeHeading, "net amount"
CheckEqual "BoldRangeHeadings", sheet.Range("B4").Font.Bold, True
CheckEqual "WrapHeaderText", sheet.Range("B4").WrapText, True
CheckEqual "HeadingColour", sheet.Range("B4").Interior.Color, &H00FF00&
CheckEqual "AddHeadingsBorder", sheet.Range("B4").Borders(xlEdgeBottom).LineStyle, xlDouble
CheckEqual "RangeColour", area.Interior.Color, &HCCFFFF
CheckEqual "AlternateRangeColour", area.FormatConditions(1).Interior.Color, &HFFFFCC
CheckEqual "its rule", area.FormatConditions(1).Formula1, "=MOD(ROW(), 2)=0"
CheckEqual "SetForceColumnWidth", area.EntireColumn.ColumnWidth, 14
CheckEqual "AddLineAtBottomOfRange", area.Borders(xlEdgeBottom).LineStyle, xlContinuous
Check "DoNotAddBoxLinesIfColoured", area.Borders(xlEdgeLeft).LineStyle <> xlContinuous
CheckEqual "RangeArea is the area placed", properties.RangeArea.Address, "$B$5:$B$8"
CheckEqual "DoNotAddBoxLinesIfColoured read", properties.DoNotAddBoxLinesIfColoured, True

' --- a heading of one's own, by formatting alone
Set properties = NewProperties("code")
Set properties.RangeArea = sheet.Range("A5:A9")
properties.AddColumnHeadings = True
properties.RangeHeading = "Nominal"
properties.FormatRange
CheckEqual "FormatRange", Cell("A4"), "Nominal"

' --- declaring and placing in one step
Set properties = NewProperties("tax")
properties.ExcelRange.DetailIndicator = hdiDetail
properties.ExcelRange.RangeDataType = rdtDouble
properties.ExcelRange.Description = "Tax"
Set properties.RangeArea = sheet.Range("C5:C8")
CheckIs "AddDetailRangeToSpreadsheet returns nothing", list.AddDetailRangeToSpreadsheet(properties), Nothing
CheckEqual "it is declared", list("tax").Description, "Tax"
CheckEqual "and placed", sheet.Range("Data__tax").Address, "$C$5:$C$8"
list.SetIfRangesExist
CheckEqual "the list finds it again", list.RangeExists("tax"), True

' --- what can't be placed
Set properties = NewProperties("code")
On Error Resume Next
Set area = sheet.Range("A5:B9")
list.AddRangeToSpreadsheet area, properties
CheckError "two columns", &H80040000, _
           "Line No.: n AddRangeToSpreadsheet of Class Module clsInterfaceRangeList Line#:n", _
           "Only one column should be selected"
Set area = sheet.Range("A5:A9")
list.AddRangeToSpreadsheet area, NewProperties("period")
CheckError "a header of several rows", &H80040000, _
           "Line No.: n AddRangeToSpreadsheet of Class Module clsInterfaceRangeList Line#:n", _
           "Only one row should be selected for header type ranges"
list.AddRangeToSpreadsheet area, NewProperties("nope")
CheckEqual "a range that isn't declared", Err.Number, 5
Err.Clear
list.AddRangeToSpreadsheet area, Nothing
CheckEqual "no form", Err.Number, 91
Err.Clear
list.AddRangeToSpreadsheet area, sheet
CheckError "another object for the form", 13, "", "Type mismatch"
On Error GoTo 0

' --- the person's own look
Set properties = NewProperties("reverse")
properties.SetStandardDetailFormat
CheckEqual "SetStandardDetailFormat: format", properties.AddFormat, True
CheckEqual "SetStandardDetailFormat: bold", properties.BoldRangeHeadings, True
CheckEqual "SetStandardDetailFormat: border", properties.AddHeadingsBorder, True
CheckEqual "SetStandardDetailFormat: range border", properties.AddRangeBorder, True

list.AddRangeNotOnListToSpreadsheet sheet.Range("D5"), properties
CheckEqual "AddRangeNotOnListToSpreadsheet does nothing", book.Names.Count, 3
