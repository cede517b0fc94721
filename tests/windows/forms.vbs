' The dialogs of the library. Nobody is there: each is closed at once as by its title bar, and what it
' would have shown goes to standard error.
Dim dates, about, version, functions, shell, settings

NewScene "Data"

' --- the calendar --------------------------------------------------------------------------------

Set dates = CreateObject("Rangewerks.clsBrowseDate")
CheckClass "a date browse", dates, "clsBrowseDate"
Check "ActiveCell at first", dates.ActiveCell Is Nothing
On Error Resume Next
dates.BrowseDate
CheckError "a browse without a cell", 91, _
           "Line No.: n BrowseDate of Class Module clsBrowseDate Line#:n", _
           "Object variable or With block variable not set"
On Error GoTo 0
Dim chosen
Set chosen = sheet.Range("B5")
Set dates.ActiveCell = chosen
CheckIs "ActiveCell", dates.ActiveCell, chosen
Put "B5", "abc"
dates.BrowseDate
CheckEqual "a browse that is closed leaves the cell", Cell("B5"), "abc"

' --- the about box and the version ---------------------------------------------------------------

Set about = CreateObject("Rangewerks.clsExcelAbout")
CheckClass "an about box", about, "clsExcelAbout"
CheckEqual "Description at first", about.Description, ""
about.Description = "Posts journals"
about.Disclaimer = "Tests only"
about.Copyright = "Nobody's"
about.ProductName = "Journals"
about.Version = "2.1"
CheckEqual "Description", about.Description, "Posts journals"
CheckEqual "Disclaimer", about.Disclaimer, "Tests only"
CheckEqual "Copyright", about.Copyright, "Nobody's"
CheckEqual "ProductName", about.ProductName, "Journals"
CheckEqual "Version", about.Version, "2.1"
about.Show
CheckEqual "the texts stay", about.ProductName, "Journals"

Set version = CreateObject("Rangewerks.clsRangewerksVer")
CheckClass "the version", version, "clsRangewerksVer"
Dim pattern
Set pattern = New RegExp
pattern.Pattern = "^Rangewerks: [0-9]+\.[0-9]+\.[0-9]+$"
Check "RangewerksVer", pattern.Test(version.RangewerksVer)

' --- saving a posted sheet -----------------------------------------------------------------------

Const settingsKey = "HKCU\Software\Ostrel\SheetConnectors\Rangewerks script tests\File Save Settings\"
Set functions = CreateObject("Rangewerks.ExcelFunctions")
functions.CallSaveSheet sheet, "JNL0042", "Rangewerks script tests of nothing"
CheckEqual "a section without settings", Err.Number, 0

Dim files, folder, target
Set files = CreateObject("Scripting.FileSystemObject")
folder = files.GetSpecialFolder(2).Path
Set shell = CreateObject("WScript.Shell")
shell.RegWrite settingsKey & "File", folder, "REG_SZ"
shell.RegWrite settingsKey & "Identifier", "rangewerks %i", "REG_SZ"
shell.RegWrite settingsKey & "DoSaveFile", -1, "REG_DWORD"
shell.RegWrite settingsKey & "PromptOnSave", 0, "REG_DWORD"
target = folder & "\rangewerks JNL0042.xls"
functions.CallSaveSheet sheet, "JNL0042", "Rangewerks script tests"
Check "a copy is saved", files.FileExists(target)
files.DeleteFile target

shell.RegWrite settingsKey & "PromptOnSave", -1, "REG_DWORD"
functions.CallSaveSheet sheet, "JNL0042", "Rangewerks script tests"
Check "a dialog that is closed saves nothing", Not files.FileExists(target)

shell.RegWrite settingsKey & "PromptOnSave", 0, "REG_DWORD"
shell.RegWrite settingsKey & "File", "C:\no such folder", "REG_SZ"
functions.CallSaveSheet sheet, "JNL0042", "Rangewerks script tests"
CheckEqual "a copy that can't be written isn't told to the caller", Err.Number, 0
shell.RegWrite settingsKey & "DoSaveFile", 0, "REG_DWORD"
