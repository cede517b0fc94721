// rangewerks: the library from the command line.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <functional>
#include <iostream>
#include <map>

#include "apps/rangewerks/browse_command.h"
#include "apps/rangewerks/clear_command.h"
#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/fill_command.h"
#include "apps/rangewerks/help_texts.h"
#include "apps/rangewerks/place_command.h"
#include "apps/rangewerks/read_command.h"
#include "apps/rangewerks/validate_command.h"
#include "automation/error.h"
#include "systems/posix/posix_system.h"

namespace {

using namespace rangewerks::apps;

void AddBookOptions(CLI::App& command, SheetOptions& options) {
  static const std::map<std::string, HostKind> hosts = {{"libreoffice", HostKind::LibreOffice},
                                                        {"workbook", HostKind::Workbook}};
  command
      .add_option("BOOK", options.book,
                  "The workbook: xlsx, xlsm, xls, ods, or a JSON workbook file")
      ->required()
      ->type_name("FILE");
  command
      .add_option_function<std::string>(
          "--host", [&options](const std::string& name) { options.host = hosts.at(name); },
          "The spreadsheet program: libreoffice or workbook (in memory, from a JSON workbook "
          "file); default: by the file's extension")
      ->check(CLI::IsMember(hosts))
      ->type_name("HOST");
}

void AddSheetOptions(CLI::App& command, SheetOptions& options) {
  static const std::map<std::string, OutputForm> forms = {
      {"table", OutputForm::Table}, {"json", OutputForm::Json}, {"csv", OutputForm::Csv}};
  AddBookOptions(command, options);
  command
      .add_option("--interface", options.interfaceFile,
                  "The interface file: which ranges the sheet should have (docs/interface-file.md)")
      ->required()
      ->type_name("FILE");
  command.add_option("--sheet", options.sheet, "The sheet to work on; default: the one in front")
      ->type_name("NAME");
  command
      .add_option_function<std::string>(
          "--output", [&options](const std::string& name) { options.output = forms.at(name); },
          "table (default), json or csv")
      ->check(CLI::IsMember(forms))
      ->type_name("FORM");
}

void AddSaveOptions(CLI::App& command, SaveOptions& options) {
  command
      .add_option("--save", options.copy,
                  "The file to save to, in the format that its extension tells")
      ->type_name("COPY");
  command.add_flag("--in-place", options.inPlace, "Replace the workbook's own file");
  command.add_flag("--overwrite", options.overwrite, "Replace COPY when it is there already");
}

/// The commands of the program, one of which is chosen and carried out.
class Commands {
 public:
  Commands(CLI::App& app, const rangewerks::platform::System& system) {
    Add(app, "read", "Print what a posting program would read from a sheet", kReadFooter, read_,
        [this](Console to) { return RunRead(read_, to); });
    Add(app, "validate", "Check the layout of a sheet's ranges", kValidateFooter, validate_,
        [this](Console to) { return RunValidate(validate_, to); });
    CLI::App* fill =
        Add(app, "fill", "Write values into a sheet's ranges and save the workbook", kFillFooter,
            fill_.sheet, [this](Console to) { return RunFill(fill_, to); });
    fill->add_option("--data", fill_.data, "The values, .json or .csv (docs/fill-data.md)")
        ->required()
        ->type_name("ROWS");
    AddSaveOptions(*fill, fill_.save);
    CLI::App* clear =
        Add(app, "clear", "Empty a sheet's ranges and save the workbook", kClearFooter,
            clear_.sheet, [this](Console to) { return RunClear(clear_, to); });
    AddClearOptions(*clear);
    AddSaveOptions(*clear, clear_.save);
    CLI::App* place = Add(app, "place", "Put declared ranges onto a sheet and save the workbook",
                          kPlaceFooter, place_.sheet, [this, &system](Console to) {
                            return RunPlace(place_, system.OpenRegistry(), to);
                          });
    AddPlaceOptions(*place);
    AddSaveOptions(*place, place_.save);
    AddBrowse(app);
  }

  ExitStatus Run(Console console) const { return run_(console); }

 private:
  template <class RunCommand>
  CLI::App* Add(CLI::App& app, const char* name, const char* purpose, const char* footer,
                SheetOptions& sheet, RunCommand run) {
    CLI::App* command = app.add_subcommand(name, purpose);
    AddSheetOptions(*command, sheet);
    command->footer(footer);
    command->callback([this, run] { run_ = run; });
    return command;
  }

  void AddBrowse(CLI::App& app) {
    static const std::map<std::string, BrowseMethod> methods = {
        {"macro", BrowseMethod::Macro}, {"property", BrowseMethod::Property}};
    CLI::App* browse =
        app.add_subcommand("browse", "Mark a workbook as having a right-click browse");
    browse->footer(kBrowseFooter);
    browse->callback([this] { run_ = [this](Console to) { return RunBrowse(browse_, to); }; });
    AddBookOptions(*browse, browse_.book);
    CLI::Option_group* action = browse->add_option_group("What to do");
    const auto offer = [&](const char* name, BrowseAction chosen, const char* what) {
      action->add_flag_callback(
          name, [this, chosen] { browse_.action = chosen; }, what);
    };
    offer("--add", BrowseAction::Add, "Give the workbook a browse and save it");
    offer("--remove", BrowseAction::Remove, "Take the browse from the workbook and save it");
    offer("--status", BrowseAction::Status, "Tell whether the workbook has a browse");
    action->require_option(1);
    browse
        ->add_option("--component", browse_.component,
                     "Name of the document property and of the browse's module; default: "
                     "OstrelBrowseModule")
        ->type_name("NAME");
    browse
        ->add_option_function<std::string>(
            "--method", [this](const std::string& name) { browse_.method = methods.at(name); },
            "property (default) or macro")
        ->check(CLI::IsMember(methods))
        ->type_name("METHOD");
    AddSaveOptions(*browse, browse_.save);
  }

  void AddClearOptions(CLI::App& clear) {
    CLI::Option* tag =
        clear
            .add_option_function<std::string>(
                "--tag", [this](const std::string& text) { clear_.choice.tag = text; },
                "Only the ranges with this Tag")
            ->type_name("T");
    clear
        .add_option("--exclude-group", clear_.choice.excludeGroups,
                    "But not those of this Group; may be repeated")
        ->needs(tag)
        ->allow_extra_args(false)
        ->type_name("G");
    clear.add_flag("--details", clear_.choice.details, "Only the ranges declared as detail")
        ->excludes(tag);
  }

  void AddPlaceOptions(CLI::App& place) {
    CLI::Option* layout = place
                              .add_option("--layout", place_.layout,
                                          "Places the ranges of this file (docs/layout-file.md)")
                              ->type_name("FILE");
    CLI::Option* range =
        place.add_option("--range", place_.range, "Places this one range")->type_name("NAME");
    CLI::Option* at =
        place.add_option("--at", place_.at, "The range's cells, such as B3 or D12:D31")
            ->type_name("ADDRESS");
    place
        .add_option("--rows", place_.rows,
                    "The range's height from the first cell of ADDRESS; a header stays one cell")
        ->check(CLI::Range(std::int32_t{1}, kMostRows))
        ->type_name("N")
        ->needs(range);
    range->needs(at)->excludes(layout);
    at->needs(range);
    const auto without = [&](const char* name, bool& feature, const char* what) {
      place.add_flag_callback(
          name, [&feature] { feature = false; }, what);
    };
    PlaceFeatures& features = place_.features;
    without("--no-format", features.format, "Without number formats and alignment");
    without("--no-validation", features.validation, "Without validation");
    without("--no-tooltips", features.tooltips, "Without the messages at selected cells");
    without("--no-headings", features.headings, "Without headings above detail columns");
  }

  SheetOptions read_;
  SheetOptions validate_;
  FillOptions fill_;
  ClearOptions clear_;
  PlaceOptions place_;
  BrowseOptions browse_;
  std::function<ExitStatus(Console)> run_;
};

constexpr const char* kCommandNames = "read, validate, fill, clear, place and browse";

/// What is wrong with the arguments; CLI11's own words for a missing command name none.
std::string WordsOf(const CLI::ParseError& error, const CLI::App& app, int argc, char** argv) {
  if (!app.get_subcommands().empty()) return error.what();
  const std::string commands = std::string("the commands are ") + kCommandNames;
  return argc < 2 ? "say what to do; " + commands
                  : "there is no command \"" + std::string(argv[1]) + "\"; " + commands;
}

std::string HelpFor(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty()
             ? "rangewerks --help tells what each does."
             : "rangewerks " + chosen.front()->get_name() + " --help tells how to call it.";
}

int Tell(const std::string& words) {
  std::cerr << "rangewerks: " << words << '\n';
  return kUnusable;
}

int Run(int argc, char** argv) {
  CLI::App app(
      "Finds declared cell ranges on a spreadsheet, reads them by their types, and writes back.",
      "rangewerks");
  app.set_version_flag("--version", "rangewerks " RANGEWERKS_VERSION);
  app.require_subcommand(1);
  app.footer(kFooter);
  const rangewerks::systems::PosixSystem system;
  Commands commands(app, system);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) return app.exit(error);
    return Tell(WordsOf(error, app, argc, argv) + "\n" + HelpFor(app));
  }
  rangewerks::automation::Locale::SetCurrent(system.CurrentLocale());
  return commands.Run({std::cout, std::cerr, isatty(STDERR_FILENO) == 1});
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
