' The script host itself and the checks, without any of our objects: where these fail, no other
' script's word counts.

CheckEqual "arguments are passed on", WScript.Arguments.Count, 0
CheckEqual "numbers are equal whatever their width", 3, CLng(3)
Check "a number is no text", Shown(3) <> Shown("3")
Check "Null is no Empty", Shown(Null) <> Shown(Empty)
CheckEqual "objects are shown as such", Shown(WScript), "an object"

On Error Resume Next
Err.Raise vbObjectError + 512, "the script", "wrong on purpose"
CheckError "a raised error is caught with its words", vbObjectError + 512, "the script", "wrong on purpose"
CheckEqual "and is clear when it was checked", Err.Number, 0
CreateObject "Rangewerks.NoSuchClass"
CheckEqual "an object of an unknown name can't be made", Err.Number, 429
Err.Clear
On Error GoTo 0

' What the runner lives by: a failed check is counted.
Dim failedBefore
failedBefore = checksFailed
Check "this check fails on purpose, and is taken back", False
CheckEqual "a failed check is counted", checksFailed, failedBefore + 1
checksFailed = failedBefore
