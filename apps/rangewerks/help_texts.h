// What --help tells below the options of the program and of each of its commands.
#pragma once

namespace rangewerks::apps {

inline constexpr const char* kFooter =
    "rangewerks COMMAND --help tells more about one of them.\n"
    "Exit status: 0 when all is well, 1 when the command has found something to complain of, 2 for "
    "wrong usage or files.";

inline constexpr const char* kReadFooter =
    "Examples:\n"
    "  rangewerks read journal.xlsx --interface journal.interface.json\n"
    "  rangewerks read journal.xlsx --interface journal.interface.json --sheet \"2024 Q1\" "
    "--output json\n\n"
    "A cell that can't be read as its declared type is listed as a bad cell, and reading goes on.\n"
    "Numbers and dates that stand in cells as text are read by the locale (LC_ALL).\n"
    "Exit status: 0 when every cell could be read, 1 with bad cells, 2 for wrong usage or files.\n";

inline constexpr const char* kValidateFooter =
    "Example:\n"
    "  rangewerks validate journal.xlsx --interface journal.interface.json\n\n"
    "Checks that mandatory ranges are there, that header ranges are one cell, and that detail\n"
    "ranges are columns of one length. What the cells hold is the business of read.\n"
    "Exit status: 0 when the layout is sound, 1 when it isn't, 2 for wrong usage or files.\n";

inline constexpr const char* kFillFooter =
    "Examples:\n"
    "  rangewerks fill journal.xlsx --interface journal.interface.json --data rows.csv "
    "--save posted.xlsx\n"
    "  rangewerks fill journal.xlsx --interface journal.interface.json --data rows.json "
    "--in-place\n\n"
    "A data file gives values by the names of ranges (docs/fill-data.md). All of it is checked\n"
    "before a cell is written. Each value is reported as written, refused by a switch of the\n"
    "interface file, absent (its range isn't on the sheet), or differing from what the cell took.\n"
    "Exit status: 0 when every value was written, 1 when not, 2 for wrong usage or files; then\n"
    "nothing is saved.\n";

inline constexpr const char* kClearFooter =
    "Examples:\n"
    "  rangewerks clear journal.xlsx --interface journal.interface.json --details "
    "--save empty.xlsx\n"
    "  rangewerks clear journal.xlsx --interface journal.interface.json --tag journal "
    "--exclude-group batch --save next.xlsx\n\n"
    "Contents go; formats and validation stay. A range with a formula in any of its cells is "
    "kept.\n"
    "Exit status: 0 when all that was chosen is cleared, 1 when a range was kept for a formula, 2\n"
    "for wrong usage or files; then nothing is saved.\n";

inline constexpr const char* kPlaceFooter =
    "Examples:\n"
    "  rangewerks place form.xlsx --interface journal.interface.json --layout journal.layout.json "
    "--save journal.xlsx\n"
    "  rangewerks place form.xlsx --interface journal.interface.json --range debit --at D12 "
    "--rows 20 --save journal.xlsx\n\n"
    "A placed range has its workbook name, number format, validation, the message that is shown\n"
    "when a cell of it is selected, a heading in the cell above if it is a detail column, and the\n"
    "person's stored colours (docs/settings.md). What the cells hold stays. A layout file names\n"
    "ranges and their places (docs/layout-file.md). For a new workbook save an empty one from the\n"
    "spreadsheet program, or write {\"sheets\": [{\"name\": \"Journal\"}]} into a .json file.\n"
    "Exit status: 0 when all was placed, 1 when a validation or message couldn't be added or the\n"
    "layout isn't sound, 2 for wrong usage or files; then nothing is saved.\n";

inline constexpr const char* kBrowseFooter =
    "Examples:\n"
    "  rangewerks browse journal.xlsx --status\n"
    "  rangewerks browse journal.xlsx --add --save browsed.xlsx\n"
    "  rangewerks browse journal.xlsm --add --method macro --save browsed.xlsm\n\n"
    "A workbook with a browse tells the posting program that a right click on a cell may look its\n"
    "value up (docs/browse.md). The method property marks the workbook with a document property;\n"
    "the method macro writes a Workbook_Open that adds the menu entry, without the macro\n"
    "BrowseRecords behind it, and is refused where the workbook has a Workbook_Open of its own.\n"
    "Exit status: 0 when all is well, 1 when --status finds no browse, 2 for wrong usage or\n"
    "files; then nothing is saved.\n";

}  // namespace rangewerks::apps
