' One declared range, and a list of them without a sheet.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2, hdiNone = 3
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4

Dim record, records, more, key, entry, names, i, words

Function NamesOf(collection)
  Dim one, text
  text = ""
  For Each one In collection
    text = text & one.RangeName & " "
  Next
  NamesOf = text
End Function

' --- a record's defaults
Set record = CreateObject("Rangewerks.clsExInputRange")
CheckClass "a record", record, "clsExInputRange"
CheckEqual "RangeName at first", record.RangeName, ""
CheckEqual "Value at first", record.Value, Empty
CheckEqual "DataLength at first", record.DataLength, 0
CheckType "DataLength", record.DataLength, "Integer"
CheckEqual "RangeDataType at first", record.RangeDataType, rdtString
CheckType "RangeDataType", record.RangeDataType, "Long"
CheckEqual "DetailIndicator at first", record.DetailIndicator, hdiHeader
CheckEqual "DecimalPlaces at first", record.DecimalPlaces, 2
CheckEqual "BrowseColumn at first", record.BrowseColumn, ""
For Each entry In Array(record.RangeExists, record.IsMandatory, record.IsDownload, record.IsBrowseable, _
                        record.IsSageCompany, record.IsValueFound, record.BecomeHeader, record.CanBeHeader, _
                        record.BlankValueIsFound)
  CheckEqual "a yes or no at first", entry, False
Next
For Each entry In Array(record.RangeHeading, record.Description, record.Group, record.GroupRange, record.Tag)
  CheckEqual "a text at first", entry, ""
Next
CheckEqual "Offset at first", record.Offset, 0

' --- what is written is read
record.RangeHeading = "Net amount"
CheckEqual "RangeHeading", record.RangeHeading, "Net amount"
record.RangeName = "amount"
CheckEqual "RangeName", record.RangeName, "amount"
record.Description = "Net " & Chr(163)
CheckEqual "Description", record.Description, "Net " & Chr(163)
record.DataLength = 12
CheckEqual "DataLength", record.DataLength, 12
record.RangeDataType = rdtDouble
CheckEqual "RangeDataType", record.RangeDataType, rdtDouble
record.DetailIndicator = hdiDetail
CheckEqual "DetailIndicator", record.DetailIndicator, hdiDetail
record.RangeExists = True
CheckEqual "RangeExists", record.RangeExists, True
record.IsMandatory = True
CheckEqual "IsMandatory", record.IsMandatory, True
record.IsDownload = True
CheckEqual "IsDownload", record.IsDownload, True
record.IsBrowseable = True
CheckEqual "IsBrowseable", record.IsBrowseable, True
CheckEqual "BrowseColumn is the name when blank", record.BrowseColumn, "amount"
record.BrowseColumn = "nominal"
CheckEqual "BrowseColumn", record.BrowseColumn, "nominal"
record.Offset = -1
CheckEqual "Offset", record.Offset, -1
record.Group = "lines"
CheckEqual "Group", record.Group, "lines"
record.DecimalPlaces = -1
CheckEqual "DecimalPlaces", record.DecimalPlaces, -1
record.IsSageCompany = True
CheckEqual "IsSageCompany", record.IsSageCompany, True
record.GroupRange = "code"
CheckEqual "GroupRange", record.GroupRange, "code"
record.IsValueFound = True
CheckEqual "IsValueFound", record.IsValueFound, True
record.CanBeHeader = True
CheckEqual "CanBeHeader", record.CanBeHeader, True
record.BlankValueIsFound = True
CheckEqual "BlankValueIsFound", record.BlankValueIsFound, True
record.Tag = "batch"
CheckEqual "Tag", record.Tag, "batch"

' --- the value keeps its kind
For Each entry In Array("text", True, 12, 1.5, DateSerial(2024, 1, 31), Empty, Null)
  record.Value = entry
  CheckEqual "Value", record.Value, entry
  CheckType "Value", record.Value, TypeName(entry)
Next

' --- in words
words = Array("Header", "Detail", "Header/Detail", "")
For i = 0 To 3
  record.DetailIndicator = i
  CheckEqual "HeadDetailDesc", record.HeadDetailDesc, words(i)
Next
words = Array("String", "Double", "Date", "Integer", "Yes/No", "")
For i = 0 To 5
  record.RangeDataType = i
  CheckEqual "DataTypeDesc", record.DataTypeDesc, words(i)
Next

' --- what can't be written
On Error Resume Next
record.HeadDetailDesc = "x"
CheckError "a property that is only read", 438, "", "Object doesn't support this property or method"
record.BecomeHeader = True
CheckError "what only locating finds out", 438, "", "Object doesn't support this property or method"
record.DataLength = 40000
CheckError "a number beyond 16 bits", 6, "", "Overflow"
record.IsMandatory = "perhaps"
CheckError "a text that is neither yes nor no", 13, "", "Type mismatch"
record.NoSuchMember = 1
CheckEqual "a member that isn't there", Err.Number, 438
Err.Clear
On Error GoTo 0
CheckEqual "a failed write changes nothing", record.DataLength, 12

' --- a list of records
Set records = CreateObject("Rangewerks.colExInputRangeList")
CheckClass "a list", records, "colExInputRangeList"
CheckEqual "Count", records.Count, 0
Set record = records.Add("qty", hdiDetail, rdtInteger)
CheckEqual "Add", record.RangeName, "qty"
key = ""
records.Add "amount", hdiDetail, rdtDouble, True, False, "Net amount", 12, 1.5, key, True, "nominal", "lines"
CheckEqual "an empty key takes the name", key, "amount"
CheckEqual "Add: Value", records("amount").Value, 1.5
key = "K"
records.Add "due", hdiDetail, rdtDate, , , , , , key
CheckIs "by key and by position", records.Item("K"), records.Item(3)
CheckIs "the default member", records("QTY"), record
names = ""
For Each entry In records
  names = names & entry.RangeName & " "
Next
CheckEqual "for each", names, "qty amount due "
On Error Resume Next
records.Add "Qty", hdiDetail, rdtInteger
CheckError "a name for the second time", 457, "Line No.: n Add of Class Module colExInputRangeList Line#:n", _
           "Range Qty already exists on list"
Set record = records.Item("due")
CheckError "a record's name where it has another key", 5, "", "Invalid procedure call or argument"
On Error GoTo 0
records.Sort
CheckEqual "Sort", NamesOf(records), "amount due qty "
CheckEqual "after Sort each is found by its name", records("due").RangeName, "due"
records.Remove "due"
records.Remove 1
CheckEqual "Remove", NamesOf(records), "qty "

Set more = CreateObject("Rangewerks.colExInputRangeList")
more.Add "qty", hdiHeader, rdtDouble
more.Add "rate", hdiHeader, rdtDouble
records.Append more
CheckEqual "Append", NamesOf(records), "qty rate "
CheckEqual "Append passes over a name that is there", records("qty").DetailIndicator, hdiDetail
CheckIs "Append adds the same objects", records("rate"), more("rate")
more.Remove "rate"
records.Append more, True
CheckEqual "Append overwrites when told to", records("qty").DetailIndicator, hdiHeader
CheckEqual "what is overwritten stands last", NamesOf(records), "rate qty "
On Error Resume Next
records.Append Nothing
CheckEqual "Append of nothing", Err.Number, 91
Err.Clear
records.Append record
CheckError "Append of another class", 13, "", "Type mismatch"
On Error GoTo 0
records.ClearList
CheckEqual "ClearList", records.Count, 0
