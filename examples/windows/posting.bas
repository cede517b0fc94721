Attribute VB_Name = "Posting"
' Reads the lines of a journal, writes a reference behind each good one, and tells what is wrong with
' the others, in the Immediate window.
'
' Import into Excel's editor (File, Import File), set the reference to "Rangewerks" (Tools, References)
' and run PostJournal.
Option Explicit

Public Sub PostJournal()
    Dim sheet As Worksheet
    Dim list As Rangewerks.clsInterfaceRangeList
    Dim postingDate As Date
    Dim line As Long

    Set sheet = NewJournal()
    Set list = New Rangewerks.clsInterfaceRangeList
    list.Add "posting_date", hdiHeader, rdtDate, IsMandatory:=True
    list.Add "code", hdiDetail, rdtString, IsMandatory:=True, Description:="Nominal code", DataLength:=8
    list.Add "amount", hdiDetail, rdtDouble, IsMandatory:=True, Description:="Amount"
    list.Add "reference", hdiDetail, rdtString, Description:="Reference"
    Set list.ActSheet = sheet
    list.SheetRangeNames = True
    list.SetIfRangesExist
    list.ValidateRanges

    list.GetDateRange "posting_date", postingDate, 1
    Debug.Print "Posting date " & Year(postingDate) & "-" & Month(postingDate) & "-" & Day(postingDate)
    For line = 1 To 5
        PostLine list, line
    Next
    Debug.Print "References: " & sheet.Range("C5").Value & " " & sheet.Range("C6").Value & " " & _
                sheet.Range("C7").Value & " " & sheet.Range("C8").Value
End Sub

Private Sub PostLine(ByVal list As Rangewerks.clsInterfaceRangeList, ByVal line As Long)
    ' Variables that the list assigns to have the type of its argument.
    Dim code As String
    Dim amount As Double

    On Error GoTo Bad
    If Not list.GetStrRange("code", code, line) Then Exit Sub   ' a blank line
    list.GetValRange "amount", amount, line
    Debug.Print "Line " & line & ": " & code & " " & amount
    list.PopulateRange "reference", "P" & line, line
    Exit Sub
Bad:
    If Err.Number <> errRwkInvalidRangeValue And Err.Number <> errPLInvalidDecimalPlaces Then
        Err.Raise Err.Number, Err.Source, Err.Description
    End If
    Debug.Print "Line " & list.InvalidRow & ", " & list.InvalidRange & ": " & Err.Description
End Sub

' A sheet as an accounting department would hand it in.
Private Function NewJournal() As Worksheet
    Dim book As Workbook
    Dim sheet As Worksheet

    Set book = Application.Workbooks.Add
    Set sheet = book.Worksheets(1)
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
