' The switches of a list that only forms and placing look at, and the caller's object.
Class Posting
  Public Posted
End Class

Dim caller

NewScene "Sheet1"
CheckEqual "AddNumberValidation at first", list.AddNumberValidation, False
list.AddNumberValidation = True
CheckEqual "AddNumberValidation", list.AddNumberValidation, True
CheckEqual "SaveTheSpreadSheet at first", list.SaveTheSpreadSheet, False
list.SaveTheSpreadSheet = True
CheckEqual "SaveTheSpreadSheet", list.SaveTheSpreadSheet, True
CheckEqual "UseCallerObject at first", list.UseCallerObject, False
list.UseCallerObject = True
CheckEqual "UseCallerObject", list.UseCallerObject, True
CheckEqual "UseNewBrowseShortcutName at first", list.UseNewBrowseShortcutName, False
list.UseNewBrowseShortcutName = True
CheckEqual "UseNewBrowseShortcutName", list.UseNewBrowseShortcutName, True
list.UseNewBrowseShortcutName = 0
CheckEqual "a number as a yes or no", list.UseNewBrowseShortcutName, False

CheckIs "CallerObject at first", list.CallerObject, Nothing
Set caller = New Posting
Set list.CallerObject = caller
CheckIs "a class of the script", list.CallerObject, caller
list.CallerObject.Posted = 3
CheckEqual "it is the script's own", caller.Posted, 3
Set list.CallerObject = sheet
CheckIs "an object of another server", list.CallerObject, sheet
Set list.CallerObject = list
CheckIs "the list itself", list.CallerObject, list
Set list.CallerObject = Nothing
CheckIs "none", list.CallerObject, Nothing
On Error Resume Next
list.CallerObject = "text"
CheckError "a text", 438, "", "Object doesn't support this property or method"
Set list.ActSheet = Nothing
list.SetIfRangesExist
CheckEqual "no sheet", Err.Number, &H80040000
On Error GoTo 0
