#include "hosts/libreoffice/office.h"

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/command_bars.h"
#include "hosts/libreoffice/connection.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr std::chrono::seconds kTimeToEnd{10};

std::filesystem::path PreparedProgramFolder() {
  std::filesystem::path folder = FindProgramFolder();
  PrepareUno(folder);
  return folder;
}

/// Carries out one step with the office's exceptions turned into errors.
template <class Step>
auto Guarded(const std::string& what, Step step) {
  try {
    return step();
  } catch (...) {
    RaiseAsError(what);
  }
}

BookPointer BookOf(const automation::Object& workbook) {
  const auto known = workbook.As<Workbook>();
  if (!known) Fail("A workbook of LibreOffice was expected, not a " + workbook.TypeName());
  RequireOpen(*known->InBook());
  return known->InBook();
}

}  // namespace

struct Office::Parts {
  explicit Parts(OfficeOptions options)
      : process(PreparedProgramFolder(), options.visible),
        session(std::make_shared<Session>(Connect(process), options.visible)) {}

  OfficeProcess process;
  SessionPointer session;
  std::function<void(const MenuChoice&)> onMenuChoice;
};

Office::Office(OfficeOptions options) {
  parts_ = Guarded("Starting LibreOffice", [&] { return std::make_unique<Parts>(options); });
}

Office::~Office() {
  try {
    while (!parts_->session->Books().empty()) {
      parts_->session->Close(parts_->session->Books().back());
    }
    parts_->session->Desktop()->terminate();
    parts_->process.WaitForEnd(kTimeToEnd);
  } catch (const std::exception&) {
  } catch (const css::uno::Exception&) {
    // It has ended already, or won't end by itself: the process's own end sees to that.
  }
}

automation::Object Office::Application() { return libreoffice::Application::Of(parts_->session); }

automation::Object Office::Open(const std::string& path, OpenOptions options) {
  return Guarded("Opening " + path, [&]() -> automation::Object {
    return Workbook::Of(parts_->session, OpenDocument(*parts_->session, path, options));
  });
}

automation::Object Office::NewWorkbook(const std::vector<std::string>& sheets) {
  return Guarded("Making a workbook", [&]() -> automation::Object {
    return Workbook::Of(parts_->session, NewDocument(*parts_->session, sheets));
  });
}

void Office::SaveCopyAs(const automation::Object& workbook, const std::string& path) {
  Guarded("Saving " + path, [&] { SaveDocumentCopy(*BookOf(workbook), path); });
}

void Office::Close(const automation::Object& workbook) {
  Guarded("Closing a workbook", [&] { parts_->session->Close(BookOf(workbook)); });
}

void Office::OnMenuChoice(std::function<void(const MenuChoice&)> handler) {
  parts_->onMenuChoice = std::move(handler);
}

std::size_t Office::TellMenuChoices(std::chrono::milliseconds wait) {
  std::size_t told = 0;
  const auto next = [&] {
    return parts_->session->Menu().TakeChoice(told == 0 ? wait : std::chrono::milliseconds{});
  };
  while (const MenuEntryPointer entry = next()) {
    ++told;
    std::make_shared<CommandBarControl>(parts_->session, entry)->RaiseClick();
    const auto handler = parts_->onMenuChoice;  // it may say something else from now on
    if (handler) handler({entry->caption, entry->tag, entry->onAction});
  }
  return told;
}

}  // namespace rangewerks::hosts::libreoffice
