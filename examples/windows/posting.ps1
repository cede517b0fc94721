# Reads the lines of a journal, writes a reference behind each good one, and tells what is wrong with
# the others. Rangewerks.dll is registered; PowerShell, Excel and the DLL have one word size.
#
#   powershell -ExecutionPolicy Bypass -File posting.ps1
#
# The host is Excel: PowerShell calls members that a type library describes, and SheetHost has none.
Set-StrictMode -Version Latest
$ErrorActionPreference = 'Stop'

$hdiHeader = 0; $hdiDetail = 1
$rdtString = 0; $rdtDouble = 1; $rdtDate = 2

# A sheet as an accounting department would hand it in.
function New-Journal($book) {
    $sheet = $book.Worksheets.Item(1)
    $sheet.Name = 'Journal'
    [void]$book.Names.Add('Journal__posting_date', '=Journal!$B$1')
    [void]$book.Names.Add('Journal__code', '=Journal!$A$5:$A$9')
    [void]$book.Names.Add('Journal__amount', '=Journal!$B$5:$B$9')
    [void]$book.Names.Add('Journal__reference', '=Journal!$C$5:$C$9')
    # Value takes an argument in Excel; Value2 and Formula take none.
    $sheet.Range('B1').Formula = '2024-03-31'
    $sheet.Range('A5').Value2 = '4000'
    $sheet.Range('B5').Value2 = 1250.5
    $sheet.Range('A6').Value2 = '4010'
    $sheet.Range('B6').Value2 = "'(99.50)"
    $sheet.Range('A7').Value2 = '4020'
    $sheet.Range('B7').Value2 = 'to follow'
    $sheet.Range('A8').Value2 = '4030'
    $sheet.Range('B8').Value2 = 70.25
    return $sheet
}

$application = New-Object -ComObject Excel.Application
try {
    $book = $application.Workbooks.Add()
    $sheet = New-Journal $book

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
            $words = $_.Exception.GetBaseException().Message
            "Line $($list.InvalidRow), $($list.InvalidRange): $words"
        }
    }
    'References: ' + ((5..8 | ForEach-Object { $sheet.Range("C$_").Text }) -join ' ')
} finally {
    if (Test-Path variable:book) { $book.Close($false) }
    $application.Quit()
}
