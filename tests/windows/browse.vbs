' The right-click browse: macro code, the mark of a workbook, and the entry in the menu of cells.
Dim editor, browse, shortcut, value, modules, cellMenu, openMacro

Function CodeOf(module)
  Dim code
  Set code = book.VBProject.VBComponents(module).CodeModule
  CodeOf = ""
  If code.CountOfLines > 0 Then CodeOf = code.Lines(1, code.CountOfLines)
End Function

NewScene "Data"
testing.TrustVBProject = True
Set modules = book.VBProject.VBComponents
Set cellMenu = host.CommandBars("Cell").Controls

' --- the editor
Set editor = CreateObject("Rangewerks.clsExcelVB")
CheckClass "the editor", editor, "clsExcelVB"
CheckIs "WorkBook at first", editor.WorkBook, Nothing
Set editor.WorkBook = book
CheckIs "WorkBook", editor.WorkBook, book
editor.Module = "Macros"
CheckEqual "Module", editor.Module, "Macros"
editor.Procedure = "Run"
CheckEqual "Procedure", editor.Procedure, "Run"
editor.AddModule
CheckEqual "AddModule", modules("Macros").Type, 1
editor.AddCodeLine "Sub Run()"
editor.AddCodeLine ""
editor.AddCodeLine "  x = 1"
editor.AddCodeLine "End Sub"
editor.InsertCode
CheckEqual "InsertCode", CodeOf("Macros"), vbCrLf & "Sub Run()" & vbCrLf & "  x = 1" & vbCrLf & "End Sub"
editor.DeleteThisText "X ="
CheckEqual "DeleteThisText", CodeOf("Macros"), vbCrLf & "Sub Run()" & vbCrLf & "End Sub"
editor.LoadProcedure
editor.InsertCode
CheckEqual "LoadProcedure forgets the lines", modules("Macros").CodeModule.CountOfLines, 4
editor.DeleteProcedure
CheckEqual "DeleteProcedure", CodeOf("Macros"), ""
editor.AddCodeLine "' one"
editor.ClearCode
editor.AddCodeLine "' two"
editor.InsertCode
CheckEqual "ClearCode", CodeOf("Macros"), vbCrLf & "' two"
editor.DeleteThisText "two", 1
editor.DeleteModule
CheckEqual "DeleteModule", modules.Count, 2
editor.DeleteModule
On Error Resume Next
editor.InsertCode
CheckError "a module that isn't there", 9, "Workbook", "Workbook ""Book1"" has no module ""Macros"""
On Error GoTo 0

' --- the mark of a workbook by macro
Set browse = CreateObject("Rangewerks.clsAddBrowse")
CheckClass "the browse", browse, "clsAddBrowse"
CheckEqual "sCaption", browse.sCaption, "Brow&se Records"
CheckEqual "sCommand", browse.sCommand, "BrowseRecords"
CheckEqual "sComponent", browse.sComponent, "OstrelBrowseModule"
CheckEqual "bNewMethod", browse.bNewMethod, False
CheckEqual "UseNewBrowseShortcutName", browse.UseNewBrowseShortcutName, False
CheckEqual "BrowseMenuText", browse.BrowseMenuText, "Brow&se Records"
Set browse.WorkBook = book
CheckIs "WorkBook of the browse", browse.WorkBook, book
openMacro = vbCrLf & "Private Sub Workbook_Open()" & vbCrLf & _
  "  If Application.CommandBars(""Cell"").Controls(1).Caption <> ""Brow&se Records"" Then" & vbCrLf & _
  "      Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=""Brow&se Records""" & _
  ", OnAction:=""BrowseRecords"", Before:=""Cut""" & vbCrLf & "  End if" & vbCrLf & "End Sub"
browse.AddBrowseToWorkbook
CheckEqual "AddBrowseToWorkbook", CodeOf("ThisWorkbook"), openMacro
value = browse.IsBrowse
CheckEqual "IsBrowse without the module", value, False
modules.Add(1).Name = "OstrelBrowseModule"
value = browse.IsBrowse
CheckEqual "IsBrowse with the module", value, True
browse.DeleteBrowseFromWorkbook
CheckEqual "DeleteBrowseFromWorkbook", CodeOf("ThisWorkbook"), _
  vbCrLf & "Private Sub Workbook_Open()" & vbCrLf & "End Sub"

testing.TrustVBProject = False
value = browse.IsBrowse
CheckEqual "IsBrowse without trust", value, False
On Error Resume Next
browse.AddBrowseToWorkbook
CheckError "AddBrowseToWorkbook without trust", 1004, "Line No.: n Line No.: n Workbook" & vbCrLf & _
  "AddWorkbookOpenBrowse of Clas Module clsAddBrowse Line#:n" & vbCrLf & _
  "AddBrowseToWorkbook of Clas Module clsAddBrowse Line#:n", _
  "Programmatic access to Visual Basic Project is not trusted"
On Error GoTo 0

' --- by document property
browse.bNewMethod = True
browse.sComponent = "Ledger.Browse"
browse.AddBrowseToWorkbook
CheckEqual "the document property", book.CustomDocumentProperties("Ledger.Browse").Value, True
value = browse.IsBrowse
CheckEqual "IsBrowse by property", value, True
browse.DeleteBrowseFromWorkbook
CheckEqual "the document property when deleted", book.CustomDocumentProperties("Ledger.Browse").Value, False

' --- the entry
browse.UseNewBrowseShortcutName = True
browse.sCommand = "Other"
browse.AddBrowseShortcut
CheckEqual "the entry", cellMenu(1).Caption, "&Browse Records"
CheckEqual "the entry's tag", cellMenu(1).Tag, "Ledger.Browse"
browse.DeleteBrowseShortcut
CheckEqual "the menu as it was", cellMenu(1).Caption, "Cu&t"
browse.sCaption = "Look"
CheckEqual "sCaption when set", browse.sCaption, "Look"

Set shortcut = CreateObject("Rangewerks.clsExcelBrowse")
CheckClass "the shortcut", shortcut, "clsExcelBrowse"
CheckEqual "UseNewMethod", shortcut.UseNewMethod, True
CheckEqual "UseNewBrowseShortcutName of the shortcut", shortcut.UseNewBrowseShortcutName, False
CheckEqual "Caption", shortcut.Caption, "Brow&se Records"
Set shortcut.WorkBook = book
CheckIs "WorkBook of the shortcut", shortcut.WorkBook, book
shortcut.UseNewMethod = False
shortcut.UseNewBrowseShortcutName = True
CheckEqual "BrowseMenuText of the shortcut", shortcut.BrowseMenuText, "&Browse Records"
shortcut.Component = "Ledger.Browse"
CheckEqual "Component", shortcut.Component, "Ledger.Browse"
shortcut.Command = "Run"
CheckEqual "Command", shortcut.Command, "Run"
shortcut.Caption = "Look up"
value = shortcut.IsBrowse
CheckEqual "IsBrowse of the shortcut", value, False
book.CustomDocumentProperties("Ledger.Browse").Value = True
value = shortcut.IsBrowse
CheckEqual "IsBrowse of the shortcut when marked", value, True
shortcut.AddBrowseShortcut
shortcut.AddBrowseShortcut
CheckEqual "one entry", cellMenu.Count, 8
CheckEqual "its caption", cellMenu(1).Caption, "Look up"
shortcut.DeleteBrowseShortcut
CheckEqual "no entry", cellMenu.Count, 7
