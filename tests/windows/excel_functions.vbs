' The routines usable without a range list.
Dim functions, shell, server

NewScene "Data"
Set functions = CreateObject("Rangewerks.ExcelFunctions")
CheckClass "the functions", functions, "ExcelFunctions"
CheckEqual "CorrectedSheetName", functions.CorrectedSheetName("R&D - 2024+"), "R_D___2024plus"
CheckEqual "CorrectedSheetName of a digit in front", functions.CorrectedSheetName("2024"), "_2024"
CheckEqual "CorrectedSheetName of nothing", functions.CorrectedSheetName(""), ""
CheckEqual "MultiTabSheetPrefix", functions.MultiTabSheetPrefix("2024 Q1"), "_2024_Q1__"
CheckEqual "RangeNameMultiTab", functions.RangeNameMultiTab("2024 Q1", "amount"), "_2024_Q1__amount"

Set shell = CreateObject("WScript.Shell")
server = shell.RegRead("HKCR\CLSID\{EB72F789-34AC-4A6A-BDC6-C39A141A58E8}\InprocServer32\")
CheckEqual "DllPath", functions.DllPath() & "\Rangewerks.dll", server

CheckEqual "ValidRangeForBrowse", functions.ValidRangeForBrowse(sheet.Range("A5")), True
On Error Resume Next
functions.ValidRangeForBrowse sheet.Range("A5:A6")
CheckError "several rows", 700, "ValidRangeForBrowse", "Cannot browse - selected range has more than one row"
functions.ValidRangeForBrowse sheet.Range("A5:B5")
CheckError "several columns", 701, "ValidRangeForBrowse", "Cannot browse - selected range has more than one column"
functions.ValidRangeForBrowse Nothing
CheckError "no range", 91, "", "Object variable or With block variable not set"
On Error GoTo 0

Put "A1", "'311299"
CheckEqual "FormatDateRange returns an empty text", functions.FormatDateRange(sheet.Range("A1")), ""
CheckEqual "a date without separators", Cell("A1"), DateSerial(2099, 12, 31)
Put "A2", "'31/12/99"
functions.FormatDateRange sheet.Range("A2")
CheckEqual "a date with a short year", Cell("A2"), DateSerial(2099, 12, 31)
Put "A3", "'31/12/2099"
functions.FormatDateRange sheet.Range("A3")
CheckEqual "a text with a full date stays", Cell("A3"), "31/12/2099"
functions.FormatDateRange sheet.Range("A4")
CheckEqual "a blank cell stays", Cell("A4"), Empty
