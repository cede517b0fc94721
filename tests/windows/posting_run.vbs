' A whole posting run, as a posting interface makes it: declare, find, check, read, report, write back
' and clear.
Const hdiHeader = 0, hdiDetail = 1, hdiHeaderDetail = 2
Const rdtString = 0, rdtDouble = 1, rdtDate = 2, rdtInteger = 3, rdtYesNo = 4
Const kRows = 6

Dim posted, total, reports, calls

Sub SetScene()
  Dim names, i
  NewScene "2024 Q1"
  Put "B1", "JNL-7"
  Put "B2", DateSerial(2024, 3, 31)
  Put "B3", 1.25
  names = Array("nominal_code", "details", "amount", "due", "quantity", "reverse", "reference")
  For i = 0 To 6
    Define "_2024_Q1__" & names(i), "$" & Chr(65 + i) & "$6:$" & Chr(65 + i) & "$11"
  Next
  Define "_2024_Q1__journal", "$B$1"
  Define "_2024_Q1__posting_date", "$B$2"
  Define "_2024_Q1__rate", "$B$3"
  PutLine 6, "4000", " March wages ", 1250.5, DateSerial(2024, 4, 30), 3, "N"
  PutLine 7, "4010", "Pension", "'(99.50)", "'04/15/2024", "'2 people", "yes"
  PutLine 8, "4020", "Rent", "to follow", Empty, Empty, Empty
  PutLine 9, "4030", "Heating", 70.125, Empty, 1, "n"
  PutLine 10, "4040", "Light", 30, "'30/30/2024", 1, "n"
  ' the last line is blank
End Sub

Sub PutLine(row, code, words, amount, due, quantity, reverse)
  Put "A" & row, code
  Put "B" & row, words
  Put "C" & row, amount
  Put "D" & row, due
  Put "E" & row, quantity
  Put "F" & row, reverse
End Sub

Sub Declare()
  list.SheetRangeNames = True
  list.DefaultTag = "journal"
  list.Add "journal", hdiHeader, rdtString, True, , "Journal"
  list.Add "posting_date", hdiHeader, rdtDate, True, , "Posting date"
  list.Add "nominal_code", hdiDetail, rdtString, True, , "Nominal code", 8
  list.Add "details", hdiDetail, rdtString, , , "Details", 30
  list.Add "amount", hdiDetail, rdtDouble, True, , "Amount"
  list.Add "due", hdiDetail, rdtDate, , , "Due date"
  list.Add "quantity", hdiDetail, rdtInteger, , , "Quantity"
  list.Add "reverse", hdiDetail, rdtYesNo, , , "Reverse"
  list.Add("rate", hdiHeaderDetail, rdtDouble, , , "Exchange rate").CanBeHeader = True
  list.Add("reference", hdiDetail, rdtString, , , "Reference").IsDownload = True
  list.ValidateDecimalPlaces = True
End Sub

' Reads a line; tells whether there is one.
Function ReadLine(line)
  Dim code, words, amount, due, quantity, reverse, rate
  ReadLine = False
  On Error Resume Next
  If Not list.GetStrRange("nominal_code", code, line) Then Exit Function
  ReadLine = True
  list.GetStrRange "details", words, line
  list.GetValRange "amount", amount, line
  If Err.Number = 0 Then list.GetDateRange "due", due, line
  If Err.Number = 0 Then list.GetIntRange "quantity", quantity, line
  If Err.Number = 0 Then list.GetYNRange "reverse", reverse, line
  If Err.Number <> 0 Then
    reports = reports & "line " & list.InvalidRow & " " & list.InvalidRange & ": " & Err.Description & ";"
    Err.Clear
    Exit Function
  End If
  list.GetValRange "rate", rate, line
  If reverse Then amount = -amount
  total = total + amount * rate
  posted = posted & code & "/" & words & "/" & amount & "/" & CLng(due) & "/" & quantity & ";"
  list.PopulateRange "reference", "P" & line, line
End Function

Sub Run()
  Dim line
  For line = 1 To kRows
    If Not ReadLine(line) Then Exit For
  Next
  CheckEqual "lines read", line, 6
End Sub

SetScene
Declare
list.SetIfRangesExist
CheckEqual "the layout", list.ValidateRanges(), True

list.GetValues 1, hdiHeader
CheckEqual "the journal", list("journal").Value, "JNL-7"
CheckEqual "the posting date", list("posting_date").Value, DateSerial(2024, 3, 31)

posted = ""
reports = ""
total = 0
Run
CheckEqual "what is posted", posted, "4000/March wages/1250.5/45412/3;4010/Pension/99.5/45397/2;"
CheckEqual "what is reported", reports, "line 3 amount: Invalid data in range 'Amount' (amount);" & _
           "line 4 amount: More than 2 Decimal places are not allowed;" & _
           "line 5 due: Invalid date in range due;"
CheckEqual "the total at the rate of the sheet", total, 1687.5
CheckEqual "references", Cell("G6") & "," & Cell("G7") & "," & Cell("G8"), "P1,P2,"

' --- how often the sheet was asked
testing.ResetCalls
testing.LogCalls = True
CheckEqual "a read", list.GetStrRangeBlk("nominal_code", 2), "4010"
CheckEqual "its calls", testing.Calls, "Worksheet.Name get" & vbCrLf & "Worksheet.Parent get" & vbCrLf & _
           "Workbook.Names get ""_2024_Q1__nominal_code""" & vbCrLf & "Name.RefersToRange get" & vbCrLf & _
           "Range.Cells get 2, 1" & vbCrLf & "Range._Default get"
testing.LogCalls = False
testing.ResetCalls
list.GetValues 1, hdiDetail
CheckEqual "calls of a whole line", testing.CallCount, 38
testing.ResetCalls

' --- the next period on the same sheet
list.ClearDetailRanges
list.ClearRange "reference"
CheckEqual "no line left", ReadLine(1), False
CheckEqual "the headers stay", Cell("B1"), "JNL-7"
