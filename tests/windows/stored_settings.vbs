' A person's stored colours and options.
Dim style, settings, other, kept, entry

Set style = CreateObject("Rangewerks.clsColumnStyle")
CheckClass "the colours", style, "clsColumnStyle"
CheckEqual "HeadingColour at first", style.HeadingColour, 0
CheckEqual "ColumnColour at first", style.ColumnColour, 0
CheckEqual "EnableRangeColor at first", style.EnableRangeColor, False
CheckEqual "EnableAlternateRangeColor at first", style.EnableAlternateRangeColor, False
CheckEqual "KeyPath at first", style.KeyPath, ""
style.HeadingColour = &HCCFFFF
CheckEqual "HeadingColour", style.HeadingColour, &HCCFFFF
CheckType "HeadingColour", style.HeadingColour, "Long"
style.ColumnColour = -1
CheckEqual "ColumnColour", style.ColumnColour, -1
style.EnableRangeColor = True
CheckEqual "EnableRangeColor", style.EnableRangeColor, True
style.EnableAlternateRangeColor = True
CheckEqual "EnableAlternateRangeColor", style.EnableAlternateRangeColor, True
style.KeyPath = "Software\Test\Styles"
CheckEqual "KeyPath", style.KeyPath, "Software\Test\Styles"

Set settings = CreateObject("Rangewerks.clsSaveSettings")
CheckClass "the options", settings, "clsSaveSettings"
For Each entry In Array(settings.UpdateSheetForBrowse, settings.ColumnHeading, settings.ColumnFormat, _
                        settings.ToolTips, settings.LengthValidation, settings.RangeWithColors)
  CheckEqual "an option at first", entry, False
Next

' --- stored and loaded; what the person had is put back
Set kept = CreateObject("Rangewerks.clsSaveSettings")
kept.LoadSettings
settings.UpdateSheetForBrowse = True
settings.ColumnHeading = False
settings.ColumnFormat = True
settings.ToolTips = False
settings.LengthValidation = True
settings.RangeWithColors = False
settings.SaveSettings
Set other = CreateObject("Rangewerks.clsSaveSettings")
other.LoadSettings
kept.SaveSettings
CheckEqual "UpdateSheetForBrowse", other.UpdateSheetForBrowse, True
CheckEqual "ColumnHeading", other.ColumnHeading, False
CheckEqual "ColumnFormat", other.ColumnFormat, True
CheckEqual "ToolTips", other.ToolTips, False
CheckEqual "LengthValidation", other.LengthValidation, True
CheckEqual "RangeWithColors", other.RangeWithColors, False
CheckEqual "what is stored changes no other object", settings.ToolTips, False
settings.LoadSettings
CheckEqual "until that loads, too", settings.ToolTips, kept.ToolTips
