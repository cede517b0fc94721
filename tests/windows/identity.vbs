' One object is one object, however it is come by.
Const hdiDetail = 1, rdtDouble = 1

Dim record, records, other, entry, headings

NewScene "Data"
CheckIs "the sheet comes back as itself", list.ActSheet, sheet
Define "amount", "$A$5:$A$9"
Set record = list.Add("amount", hdiDetail, rdtDouble)
list.SetIfRangesExist
CheckIs "by position", list(1), record
CheckIs "by key", list("amount"), record
For Each entry In list
  CheckIs "in a walk", entry, record
Next
CheckIs "under a cell", list.InAnyRange(sheet.Range("A6"), 0), record
CheckIs "an area's sheet", list.GetRange("amount").Parent, sheet
CheckIs "an area's program", list.GetRange("amount").Application, host
Check "two areas of the same cells are two objects", Not list.GetRange("amount") Is list.GetRange("amount")

Set records = CreateObject("Rangewerks.colExInputRangeList")
Set other = CreateObject("Rangewerks.colExInputRangeList")
records.Add "rate", hdiDetail, rdtDouble
other.Append records
CheckIs "on two lists", other("rate"), records("rate")
records("rate").Tag = "changed"
CheckEqual "what one changes the other sees", other("rate").Tag, "changed"

Set headings = list.GroupHeadings
Set list = CreateObject("Rangewerks.clsInterfaceRangeList")
Check "each list has headings of its own", Not list.GroupHeadings Is headings
Check "a list is another one", Not list Is CreateObject("Rangewerks.clsInterfaceRangeList")

' --- what is held lives on
CheckEqual "a record outlives its list", record.RangeName, "amount"
Set record = Nothing
Set entry = Nothing
Set list = CreateObject("Rangewerks.clsInterfaceRangeList")
list.Add "next", hdiDetail, rdtDouble
CheckEqual "and a new one takes its place", list(1).RangeName, "next"

' --- a record holds objects as values
Set record = CreateObject("Rangewerks.clsExInputRange")
record.Value = "text"
Set list.ActSheet = sheet
CheckIs "the sheet is still the same", list.ActSheet, sheet
