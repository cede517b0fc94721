' Declaring ranges, and the list as a collection.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2, hdiNone = 3
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4

Dim record, other, key, entry, names

NewScene "Sheet1"

' --- Add
CheckEqual "an empty list", list.Count, 0
list.DefaultTag = "batch"
CheckEqual "DefaultTag", list.DefaultTag, "batch"
Set record = list.Add("amount", hdiDetail, rdtDouble)
CheckClass "a record", record, "clsExInputRange"
CheckEqual "its name", record.RangeName, "amount"
CheckEqual "its indicator", record.DetailIndicator, hdiDetail
CheckEqual "its type", record.RangeDataType, rdtDouble
CheckEqual "optional arguments: IsMandatory", record.IsMandatory, False
CheckEqual "optional arguments: RangeExists", record.RangeExists, False
CheckEqual "optional arguments: Description", record.Description, ""
CheckEqual "optional arguments: DataLength", record.DataLength, 0
CheckEqual "optional arguments: Value", record.Value, 0
CheckEqual "optional arguments: IsBrowseable", record.IsBrowseable, False
CheckEqual "optional arguments: BrowseColumn", record.BrowseColumn, "amount"
CheckEqual "optional arguments: Group", record.Group, ""
CheckEqual "its tag", record.Tag, "batch"

key = "K1"
Set record = list.Add("code", hdiHeaderDetail, rdtString, True, True, "Nominal code", 8, "4000", key, _
                      True, "nominal", "codes")
CheckEqual "IsMandatory", record.IsMandatory, True
CheckEqual "RangeExists", record.RangeExists, True
CheckEqual "Description", record.Description, "Nominal code"
CheckEqual "DataLength", record.DataLength, 8
CheckEqual "Value", record.Value, "4000"
CheckEqual "IsBrowseable", record.IsBrowseable, True
CheckEqual "BrowseColumn", record.BrowseColumn, "nominal"
CheckEqual "Group", record.Group, "codes"
CheckEqual "a key that is given stays", key, "K1"
CheckIs "found by its key", list.Item("k1"), record

key = ""
Set record = list.Add("rate", hdiHeader, rdtDouble, , , , , , key)
CheckEqual "an empty key takes the name", key, "rate"
CheckEqual "left out in the middle: Value", record.Value, 0
Set record = list.Add("day", hdiHeader, rdtDate, , , "Day", , , , , , "dates")
CheckEqual "left out around another: Description", record.Description, "Day"
CheckEqual "left out around another: Group", record.Group, "dates"

On Error Resume Next
Set other = list.Add("AMOUNT", hdiDetail, rdtDouble)
CheckError "a name for the second time", 457, _
           "Line No.: n Line No.: n Add of Class Module colExInputRangeList Line#:n" & vbCrLf & _
           "Add of Class Module clsInterfaceRangeList Line#:n", _
           "Range AMOUNT already exists on list"
On Error GoTo 0

' --- the list as a collection
CheckEqual "Count", list.Count, 4
CheckType "Count", list.Count, "Long"
CheckIs "by position and by key", list.Item(1), list.Item("amount")
CheckIs "the default member", list(4), record
CheckIs "the default member with a key", list("day"), record
CheckIs "a number of another kind", list.Item(4.0), record
For Each entry In list
  names = names & entry.RangeName & " "
Next
CheckEqual "for each", names, "amount code rate day "
names = ""
For Each entry In list
  names = names & entry.RangeName & " "
  If entry.RangeName = "amount" Then list.Remove "k1"
Next
CheckEqual "a walk goes over the list as it was", names, "amount code rate day "
CheckEqual "Remove by key", list.Count, 3
On Error Resume Next
Set other = list.Item("code")
CheckError "a key that isn't there", 5, "", "Invalid procedure call or argument"
Set other = list.Item(4)
CheckError "a position that isn't there", 9, "", "Subscript out of range"
list.Remove "K1"
CheckError "Remove of what isn't there", 5, "", "Invalid procedure call or argument"
On Error GoTo 0
list.Remove 1
CheckEqual "Remove by position", list.Item(1).RangeName, "rate"
list.ClearList
CheckEqual "ClearList", list.Count, 0

' --- AddCls and AddInterface
Set record = CreateObject("Rangewerks.clsExInputRange")
record.RangeName = "due"
record.DetailIndicator = hdiDetail
record.RangeDataType = rdtDate
record.IsMandatory = True
record.Description = "Due date"
record.DataLength = 10
record.RangeHeading = "Due"
record.IsDownload = True
record.DecimalPlaces = 4
record.Tag = "own"
Set other = list.AddCls(record)
CheckEqual "AddCls makes a record of its own", other Is record, False
CheckEqual "AddCls: RangeName", other.RangeName, "due"
CheckEqual "AddCls: RangeDataType", other.RangeDataType, rdtDate
CheckEqual "AddCls: IsMandatory", other.IsMandatory, True
CheckEqual "AddCls: Description", other.Description, "Due date"
CheckEqual "AddCls: DataLength", other.DataLength, 10
CheckEqual "AddCls: RangeHeading", other.RangeHeading, "Due"
CheckEqual "AddCls: IsDownload", other.IsDownload, True
CheckEqual "AddCls: DecimalPlaces", other.DecimalPlaces, 4
CheckEqual "AddCls: Tag", other.Tag, "batch"
On Error Resume Next
list.AddCls Nothing
CheckError "AddCls of nothing", 91, "", "Object variable or With block variable not set"
list.AddCls host
CheckError "AddCls of another class", 13, "", "Type mismatch"
On Error GoTo 0

list.AddInterface "qty", True, "D", rdtInteger
list.AddInterface "ref", False, "H/D", rdtString, 12, "Reference"
list.AddInterface "odd", False, "h", rdtYesNo
CheckEqual "AddInterface: D", list("qty").DetailIndicator, hdiDetail
CheckEqual "AddInterface: mandatory", list("qty").IsMandatory, True
CheckEqual "AddInterface: no length", list("qty").DataLength, 0
CheckEqual "AddInterface: H/D", list("ref").DetailIndicator, hdiHeaderDetail
CheckEqual "AddInterface: length", list("ref").DataLength, 12
CheckEqual "AddInterface: words", list("ref").Description, "Reference"
CheckEqual "AddInterface: any other code", list("odd").DetailIndicator, hdiHeader
CheckEqual "AddInterface: no tag", list("qty").Tag, ""

' --- kept for older callers
CheckEqual "ChangeSESConnection", list.ChangeSESConnection(), False
CheckType "ChangeSESConnection", list.ChangeSESConnection, "Boolean"
