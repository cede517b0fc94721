' The headings under which ranges are shown.
Dim headings, heading, entry, texts

NewScene "Sheet1"
Set headings = list.GroupHeadings
CheckClass "the headings of a list", headings, "colGroupHeadings"
CheckIs "they are one object", list.GroupHeadings, headings
CheckEqual "Count at first", headings.Count, 0

Set heading = headings.Add("Journal lines", "lines")
CheckClass "a heading", heading, "clsRangeGroupHeading"
CheckEqual "HeadingText", heading.HeadingText, "Journal lines"
CheckEqual "HeadingKey", heading.HeadingKey, "lines"
CheckEqual "ParentGroup", heading.ParentGroup, ""
headings.Add "Dates", "dates", "lines"
CheckEqual "ParentGroup given", headings("dates").ParentGroup, "lines"
CheckEqual "Count", headings.Count, 2
CheckIs "Item", headings.Item(1), heading
CheckIs "by key", headings.Item("LINES"), heading
CheckIs "the default member", headings(1), heading
texts = ""
For Each entry In headings
  texts = texts & entry.HeadingText & ";"
Next
CheckEqual "for each", texts, "Journal lines;Dates;"

heading.HeadingText = "Lines"
heading.HeadingKey = "rows"
heading.ParentGroup = "top"
CheckEqual "HeadingText written", headings(1).HeadingText, "Lines"
CheckEqual "HeadingKey written", headings(1).HeadingKey, "rows"
CheckEqual "ParentGroup written", headings(1).ParentGroup, "top"
CheckIs "the key in the list stays", headings("lines"), heading

On Error Resume Next
headings.Add "Again", "Lines"
CheckError "a key for the second time", 457, "Line No.: n Add of Class Module colGroupHeadings Line#:n", _
           "This key is already associated with an element of this collection"
Set entry = headings.Item("nope")
CheckError "a key that isn't there", 5, "", "Invalid procedure call or argument"
Set entry = headings.Item(3)
CheckError "a position that isn't there", 9, "", "Subscript out of range"
Set entry = CreateObject("Rangewerks.colGroupHeadings")
CheckEqual "headings can't be created", Err.Number, 429
Err.Clear
Set entry = CreateObject("Rangewerks.clsRangeGroupHeading")
CheckEqual "nor one of them", Err.Number, 429
Err.Clear
On Error GoTo 0

headings.Remove "dates"
CheckEqual "Remove", headings.Count, 1
headings.ClearList
CheckEqual "ClearList", headings.Count, 0
CheckEqual "a heading outlives its list", heading.HeadingText, "Lines"
