' Which Sage user the person at the machine is.
Const hdiNone = 3

Dim person
person = CreateObject("WScript.Network").UserName

NewScene "Users"
list.AddUserRangesToList
CheckEqual "AddUserRangesToList", list.Count, 2
CheckEqual "the first", list(1).RangeName & ": " & list(1).Description, "windows_users: Windows User for mapping to Sage User"
CheckEqual "the second", list(2).RangeName & ": " & list(2).Description, "sage_users: Sage User for mapping from Sage"
CheckEqual "their indicator", list(2).DetailIndicator, hdiNone

CheckEqual "GetWindowsUserName", list.GetWindowsUserName(), person

On Error Resume Next
list.GetSageUserName
CheckError "no ranges", &H80040000, "GetSageUserName", _
  "For user name functionality, define either: " & vbCr & "A sage_users range for a single cell OR " & vbCr & _
  "Both sage_users and windows_users ranges of equal sizes for mapping"
On Error GoTo 0

Put "B2", "SAGE1"
Define "sage_users", "$B$2"
list.SetIfRangesExist
CheckEqual "one cell serves everybody", list.GetSageUserName(), "SAGE1"

Put "A2", "nobody"
Put "A3", person
Put "A4", "somebody"
Put "B3", " SAGE2 "
Define "sage_users", "$B$2:$B$4"
Define "windows_users", "$A$2:$A$4"
list.SetIfRangesExist
CheckEqual "the user on the person's line", list.GetSageUserName(), "SAGE2"

Put "A3", "nobody else"
On Error Resume Next
list.GetSageUserName
CheckError "a person who isn't there: an error without a number arrives as 5", 5, "GetSageUserName", _
           "User name " & person & " not found in list"
On Error GoTo 0
