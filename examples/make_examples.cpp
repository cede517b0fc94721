// Makes the example workbooks anew. Usage: make_examples FOLDER
#include <exception>
#include <filesystem>
#include <iostream>

#include "automation/error.h"
#include "journal_workbook.h"
#include "orders_workbook.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_examples FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    rangewerks::hosts::libreoffice::Office office;
    rangewerks::examples::WriteJournal(office, folder / "journal-2024.xlsx");
    rangewerks::examples::WriteJournalForm(office, folder / "journal-form.xlsx");
    rangewerks::examples::WriteOrders(office, folder / "orders.ods");
    rangewerks::examples::WriteSmallJournal(folder / "journal-small.workbook.json");
  } catch (const std::exception& error) {
    std::cerr << "make_examples: " << error.what() << '\n';
    return 1;
  }
}
