// rangewerks: the library from the command line.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/read_command.h"
#include "automation/error.h"
#include "systems/posix/posix_system.h"

namespace {

using namespace rangewerks::apps;

constexpr const char* kFooter =
    "Exit status: 0 when every cell could be read, 1 with bad cells, 2 for wrong usage or files.";

constexpr const char* kReadFooter =
    "Examples:\n"
    "  rangewerks read journal.xlsx --interface journal.interface.json\n"
    "  rangewerks read journal.xlsx --interface journal.interface.json --sheet \"2024 Q1\" "
    "--output json\n\n"
    "A cell that can't be read as its declared type is listed as a bad cell, and reading goes on.\n"
    "Numbers and dates that stand in cells as text are read by the locale (LC_ALL).\n"
    "Exit status: 0 when every cell could be read, 1 with bad cells, 2 for wrong usage or files.\n";

void AddRead(CLI::App& app, SheetOptions& options) {
  static const std::map<std::string, HostKind> hosts = {{"libreoffice", HostKind::LibreOffice},
                                                        {"workbook", HostKind::Workbook}};
  static const std::map<std::string, OutputForm> forms = {
      {"table", OutputForm::Table}, {"json", OutputForm::Json}, {"csv", OutputForm::Csv}};
  CLI::App* read =
      app.add_subcommand("read", "Print what a posting program would read from a workbook's sheet");
  read->add_option("BOOK", options.book, "The workbook: xlsx, xls, ods, or a JSON workbook file")
      ->required()
      ->type_name("FILE");
  read->add_option(
          "--interface", options.interfaceFile,
          "The interface file: which ranges the sheet should have (docs/interface-file.md)")
      ->required()
      ->type_name("FILE");
  read->add_option("--sheet", options.sheet, "The sheet to read; default: the one in front")
      ->type_name("NAME");
  read->add_option_function<std::string>(
          "--host", [&options](const std::string& name) { options.host = hosts.at(name); },
          "The spreadsheet program: libreoffice or workbook (in memory, from a JSON workbook "
          "file); default: by the file's extension")
      ->check(CLI::IsMember(hosts))
      ->type_name("HOST");
  read->add_option_function<std::string>(
          "--output", [&options](const std::string& name) { options.output = forms.at(name); },
          "table (default), json or csv")
      ->check(CLI::IsMember(forms))
      ->type_name("FORM");
  read->footer(kReadFooter);
}

/// What is wrong with the arguments; CLI11's own words for a missing command name none.
std::string WordsOf(const CLI::ParseError& error, const CLI::App& app, int argc, char** argv) {
  if (!app.get_subcommands().empty()) return error.what();
  return argc < 2 ? "say what to do; the one command is read"
                  : "there is no command \"" + std::string(argv[1]) + "\"; the one command is read";
}

int Tell(const std::string& words) {
  std::cerr << "rangewerks: " << words << '\n';
  return kUnusable;
}

int Run(int argc, char** argv) {
  CLI::App app("Finds declared cell ranges on a spreadsheet and reads them by their types.",
               "rangewerks");
  SheetOptions options;
  app.set_version_flag("--version", "rangewerks " RANGEWERKS_VERSION);
  app.require_subcommand(1);
  app.footer(kFooter);
  AddRead(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) return app.exit(error);
    return Tell(WordsOf(error, app, argc, argv) + "\nrangewerks read --help tells how to call it.");
  }
  rangewerks::automation::Locale::SetCurrent(rangewerks::systems::PosixSystem().CurrentLocale());
  return RunRead(options, {std::cout, std::cerr, isatty(STDERR_FILENO) == 1});
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const Failure& failure) {
    return Tell(failure.what());
  } catch (const rangewerks::automation::Error& error) {
    return Tell(error.Description());
  } catch (const std::exception& error) {
    return Tell(std::string("an unforeseen failure: ") + error.what());
  }
}
