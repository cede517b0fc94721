' What is wrong with a sheet, collected and shown. Nobody is there: windows open unseen, and message
' boxes are answered by themselves.
Dim errors, box, marker

On Error Resume Next
NewScene "Sheet1"

' --- the list ----------------------------------------------------------------------------------------

Set errors = CreateObject("Rangewerks.clsErrorList")
CheckClass "an error list", errors, "clsErrorList"
CheckEqual "ErrorCount at first", errors.ErrorCount, 0
CheckEqual "WarningCount at first", errors.WarningCount, 0
Check "KeyRange at first", errors.KeyRange Is Nothing
errors.DisplayList
CheckEqual "an empty list is told", Err.Number, 0

errors.Add 0, "No row at all", 0, ""
CheckEqual "ErrorCount", errors.ErrorCount, 1
errors.Add 1, "A row without a range", 0, ""
CheckError "a row without KeyRange", 91, _
           "Line No.: n Add of Class Module clsErrorList Line#:n", _
           "Object variable or With block variable not set"

Dim keys
Set keys = sheet.Range("B5:B20")
Set errors.KeyRange = keys
CheckIs "KeyRange", errors.KeyRange, keys
errors.Add 3, "No such nominal code", 1004, "Somewhere", True
CheckEqual "WarningCount", errors.WarningCount, 1
CheckType "WarningCount", errors.WarningCount, "Long"

Class CallersError
  Public Number
  Public Source
  Public Description
End Class
Dim failure
Set failure = New CallersError
failure.Number = 13
failure.Source = "Reading"
failure.Description = "Type mismatch"
errors.AddError 4, failure
CheckEqual "an error object counts as an error", errors.ErrorCount, 2
errors.AddError 4, failure, True
CheckEqual "or as a warning", errors.WarningCount, 2
errors.AddError 4, Nothing
CheckError "no error object", 91, _
           "Line No.: n AddError of Class Module clsErrorList Line#:n", _
           "Object variable or With block variable not set"

errors.DisplayList
CheckEqual "the list is shown", Err.Number, 0
errors.ResetList
CheckEqual "ErrorCount after ResetList", errors.ErrorCount, 0
errors.Add 2, "Again", 0, ""
errors.ClearList
CheckEqual "ErrorCount after ClearList", errors.ErrorCount, 0
CheckEqual "WarningCount after ClearList", errors.WarningCount, 0

' --- the box -----------------------------------------------------------------------------------------

Set box = CreateObject("Rangewerks.ErrorMessageBox")
CheckClass "the error message box", box, "ErrorMessageBox"
box.ErrorMessage = "It failed"
box.ErrorNumber = 1004
box.ExtraMessage = "Somewhere"
CheckEqual "ErrorMessage", box.ErrorMessage, "It failed"
CheckEqual "ErrorNumber", box.ErrorNumber, 1004
CheckType "ErrorNumber", box.ErrorNumber, "Long"
CheckEqual "ExtraMessage", box.ExtraMessage, "Somewhere"
box.DisplayMessage
CheckEqual "nothing is changed by showing", box.ErrorMessage, "It failed"
box.DisplayMessage 0, "  ", ""
CheckEqual "a number of 0 is kept", box.ErrorNumber, 1004
CheckEqual "a message of blanks is kept", box.ErrorMessage, "It failed"
CheckEqual "an empty detail clears", box.ExtraMessage, ""
box.DisplayMessage 13, "Type mismatch", "Reading"
CheckEqual "a number", box.ErrorNumber, 13
CheckEqual "a message", box.ErrorMessage, "Type mismatch"
CheckEqual "a detail", box.ExtraMessage, "Reading"

errors.Add 1, "A row of no range", 0, ""
Set errors.KeyRange = Nothing
errors.Add 1, "A row of no range", 0, ""
Err.Clear
box.DisplayErrMessage "Test of Script"
CheckEqual "the error that has left the library last", box.ErrorNumber, 91
CheckEqual "its words", box.ErrorMessage, "Object variable or With block variable not set"
CheckEqual "its way and the caller's line", WithoutLines(box.ExtraMessage), _
           "Line No.: n Add of Class Module clsErrorList Line#:n" & vbCrLf & "Test of Script"

' --- the object without members ----------------------------------------------------------------------

Set marker = CreateObject("Rangewerks.errL100Jrn")
CheckClass "the object without members", marker, "errL100Jrn"
marker.Anything
CheckEqual "it has none", Err.Number, 438
Err.Clear
