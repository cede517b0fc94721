' Reads the lines of a journal, writes a reference behind each good one, and tells what is wrong with
' the others. Rangewerks.dll and SheetHost.dll are registered.
'
'   cscript //nologo posting.vbs
Option Explicit
Const hdiHeader = 0, hdiDetail = 1
Const rdtString = 0, rdtDouble = 1, rdtDate = 2

Dim sheet, list, line

' With Excel as the host: CreateObject("Excel.Application")
Set sheet = NewJournal(CreateObject("SheetHost.Application"))

Set list = CreateObject("Rangewerks.clsInterfaceRangeList")
list.Add "posting_date", hdiHeader, rdtDate, True
list.Add "code", hdiDetail, rdtString, True, , "Nominal code", 8
list.Add "amount", hdiDetail, rdtDouble, True, , "Amount"
list.Add "reference", hdiDetail, rdtString, , , "Reference"
Set list.ActSheet = sheet
list.SheetRangeNames = True
list.SetIfRangesExist
list.ValidateRanges

PrintPostingDate
For line = 1 To 5
  PostLine line
Next
WScript.Echo "References: " & sheet.Range("C5").Value & " " & sheet.Range("C6").Value & " " & _
             sheet.Range("C7").Value & " " & sheet.Range("C8").Value

Sub PrintPostingDate()
  Dim postingDate
  list.GetDateRange "posting_date", postingDate, 1
  WScript.Echo "Posting date " & Year(postingDate) & "-" & Month(postingDate) & "-" & Day(postingDate)
End Sub

Sub PostLine(line)
  Dim code, amount
  If Not list.GetStrRange("code", code, line) Then Exit Sub   ' a blank line
  On Error Resume Next
  list.GetValRange "amount", amount, line
  If Err.Number <> 0 Then
    WScript.Echo "Line " & list.InvalidRow & ", " & list.InvalidRange & ": " & Err.Description
    Exit Sub
  End If
  On Error GoTo 0
  WScript.Echo "Line " & line & ": " & code & " " & amount
  list.PopulateRange "reference", "P" & line, line
End Sub

' A sheet as an accounting department would hand it in.
Function NewJournal(application)
  Dim book, sheet
  Set book = application.Workbooks.Add
  Set sheet = application.ActiveSheet
  sheet.Name = "Journal"
  book.Names.Add "Journal__posting_date", "=Journal!$B$1"
  book.Names.Add "Journal__code", "=Journal!$A$5:$A$9"
  book.Names.Add "Journal__amount", "=Journal!$B$5:$B$9"
  book.Names.Add "Journal__reference", "=Journal!$C$5:$C$9"
  sheet.Range("B1").Value = DateSerial(2024, 3, 31)
  sheet.Range("A5").Value = "4000"
  sheet.Range("B5").Value = 1250.5
  sheet.Range("A6").Value = "4010"
  sheet.Range("B6").Value = "'(99.50)"
  sheet.Range("A7").Value = "4020"
  sheet.Range("B7").Value = "to follow"
  sheet.Range("A8").Value = "4030"
  sheet.Range("B8").Value = 70.25
  Set NewJournal = sheet
End Function
