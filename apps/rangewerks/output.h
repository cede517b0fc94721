// The forms in which a posting is written out. Each gives the whole text, ending in a line feed.
#pragma once

#include <string>

#include "apps/rangewerks/posting_read.h"

namespace rangewerks::apps {

/// For a person: the header values, a line for each detail row, the bad cells, aligned in columns.
std::string TableOf(const std::string& book, const PostingRead& posting);

/// For a program: one JSON object with everything.
std::string JsonOf(const std::string& book, const PostingRead& posting);

/// For a spreadsheet or database: a heading, then a line for each detail row with the header values
/// repeated; cells that aren't found, and bad ones, are empty.
std::string CsvOf(const PostingRead& posting);

/// The bad cells as lines of text, for outputs that have no room for them.
std::string BadCellLinesOf(const PostingRead& posting);

}  // namespace rangewerks::apps
