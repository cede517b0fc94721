# Reads the lines of a journal, writes a reference behind each good one, and tells what is wrong with
# the others. Rangewerks.dll and SheetHost.dll are registered; PowerShell has their word size.
#
#   powershell -ExecutionPolicy Bypass -File posting.ps1
Set-StrictMode -Version Latest
$ErrorActionPreference = 'Stop'

$hdiHeader = 0; $hdiDetail = 1
$rdtString = 0; $rdtDouble = 1; $rdtDate = 2

# A sheet as an accounting department would hand it in.
function New-Journal($application) {
    $book = $application.Workbooks.Add()
    $sheet = $application.ActiveSheet
    $sheet.Name = 'Journal'
    [void]$book.Names.Add('Journal__posting_date', '=Journal!$B$1')
    [void]$book.Names.Add('Journal__code', '=Journal!$A$5:$A$9')
    [void]$book.Names.Add('Journal__amount', '=Journal!$B$5:$B$9')
    [void]$book.Names.Add('Journal__reference', '=Journal!$C$5:$C$9')
    $sheet.Range('B1').Value = [datetime]'2024-03-31'
    $sheet.Range('A5').Value = '4000'
    $sheet.Range('B5').Value = 1250.5
    $sheet.Range('A6').Value = '4010'
    $sheet.Range('B6').Value = "'(99.50)"
    $sheet.Range('A7').Value = '4020'
    $sheet.Range('B7').Value = 'to follow'
    $sheet.Range('A8').Value = '4030'
    $sheet.Range('B8').Value = 70.25
    return $sheet
}

# With Excel as the host: New-Object -ComObject Excel.Application, and Value2 in place of Value, which
# is a property with an argument there.
$sheet = New-Journal (New-Object -ComObject SheetHost.Application)

$list = New-Object -ComObject Rangewerks.clsInterfaceRangeList
$omitted = [Type]::Missing
[void]$list.Add('posting_date', $hdiHeader, $rdtDate, $true)
[void]$list.Add('code', $hdiDetail, $rdtString, $true, $omitted, 'Nominal code', 8)
[void]$list.Add('amount', $hdiDetail, $rdtDouble, $true, $omitted, 'Amount')
[void]$list.Add('reference', $hdiDetail, $rdtString, $omitted, $omitted, 'Reference')
$list.ActSheet = $sheet
$list.SheetRangeNames = $true
$list.SetIfRangesExist()
[void]$list.ValidateRanges()

# Variables that the list assigns to have the type of its argument and are passed with [ref].
[datetime]$postingDate = [datetime]::FromOADate(0)
[void]$list.GetDateRange('posting_date', [ref]$postingDate, 1)
"Posting date $($postingDate.Year)-$($postingDate.Month)-$($postingDate.Day)"
foreach ($line in 1..5) {
    [string]$code = ''
    [double]$amount = 0
    if (-not $list.GetStrRange('code', [ref]$code, $line)) { continue }   # a blank line
    try {
        [void]$list.GetValRange('amount', [ref]$amount, $line)
        "Line ${line}: $code $amount"
        $list.PopulateRange('reference', "P$line", $line)
    } catch {
        "Line $($list.InvalidRow), $($list.InvalidRange): $($_.Exception.GetBaseException().Message)"
    }
}
'References: ' + ((5..8 | ForEach-Object { $sheet.Range("C$_").Value }) -join ' ')
