' The colour panel by name, without a container.
' Needs a display: a panel has windows.

Dim panel
Set panel = CreateObject("Rangewerks.ctlColourPallet")
CheckClass "the panel", panel, "ctlColourPallet"
CheckEqual "heading at first", panel.HeadingColour, 0
CheckEqual "column at first", panel.ColumnColour, 0

panel.HeadingColour = &HFF80&
panel.ColumnColour = "255"
CheckEqual "heading", panel.HeadingColour, &HFF80&
CheckEqual "column", panel.ColumnColour, 255

panel.LoadColours
panel.NameOfTheFrame "Range Color"
panel.EnableTxtClmColour False
panel.EnableTxtHeadColour False
panel.Framelength 800
panel.EnableControl False
CheckEqual "heading of a panel that is off", panel.HeadingColour, &HFF80&
CheckEqual "column of a panel that is off", panel.ColumnColour, 255
panel.EnableControl True
CheckEqual "column of a panel that is on again", panel.ColumnColour, 255

On Error Resume Next
panel.Framelength 40000
CheckError "a length too large", 6, "", "Overflow"
panel.ColumnColour = "blue"
CheckError "no colour", 13, "", "Type mismatch"
On Error GoTo 0
