// The menu of the cells in LibreOffice: what callers see of it, and how a choice reaches them.
#include <gmock/gmock.h>

#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/menu_interception.h"
#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"

namespace rangewerks::tests {
namespace {

using hosts::libreoffice::MenuChoice;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kNoSuchElement = 9;
constexpr std::int32_t kCells = 3;
constexpr std::chrono::seconds kPatience{10};

class LibreOfficeMenus : public testing::Test {
 protected:
  void SetUp() override {
    book_ = SharedOffice().NewWorkbook({"Ledger"});
    SharedOffice().OnMenuChoice([this](const MenuChoice& choice) {
      told_.push_back(choice.caption + "/" + choice.tag + "/" + choice.onAction);
    });
  }
  void TearDown() override {
    SharedOffice().OnMenuChoice({});
    for (const Variant& each : Elements(Controls())) {
      const Object control = each.AsObject();
      if (!ToBoolean(Get(control, "BuiltIn"), automation::Locale())) Call(control, "Delete");
    }
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }

  static Object Items() {
    return GetObject(GetObject(SharedOffice().Application(), "ShortcutMenus", {kCells}),
                     "MenuItems");
  }
  static Object Controls() {
    const Object bars = GetObject(SharedOffice().Application(), "CommandBars");
    return GetObject(GetObject(bars, "Item", {"Cell"}), "Controls");
  }
  static Object Add(const char* caption, const Variant& before) {
    static const automation::Member kAdd{"Add"};
    static const automation::Member kBefore{"Before"};
    Items().Call(kAdd, {caption}, {{kBefore, before}});
    return GetObject(Controls(), "Item", {caption});
  }
  static std::string CaptionAt(std::int32_t position) {
    return GetText(GetObject(Controls(), "Item", {position}), "Caption");
  }

  /// Does what the menu of that workbook's window does with a choice: looks for who carries out the
  /// entry's command, and has it done. False when nobody does.
  static bool Choose(const Object& book, const std::string& command) {
    css::util::URL url;
    const std::size_t behindProtocol = command.find(':') + 1;
    url.Complete = url.Main = lo::ToUno(command);
    url.Protocol = lo::ToUno(command.substr(0, behindProtocol));
    url.Path = lo::ToUno(command.substr(behindProtocol));
    const auto frame = BookOf(book).Controller()->getFrame();
    const auto dispatch =
        lo::As<css::frame::XDispatchProvider>(frame)->queryDispatch(url, lo::ToUno("_self"), 0);
    if (!dispatch.is()) return false;
    dispatch->dispatch(url, {});
    return true;
  }
  static std::string CommandOf(const char* caption) {
    const Object session = SharedOffice().Application();
    lo::CellMenu& menu = session.As<lo::Application>()->OfSession()->Menu();
    return lo::kMenuProtocol + std::to_string(menu.EntryAt(caption)->id);
  }

  Object book_;
  std::vector<std::string> told_;
};

TEST_F(LibreOfficeMenus, TheMenuHasTheOfficesOwnEntries) {
  EXPECT_EQ(CaptionAt(1), "&Cut");
  EXPECT_EQ(CaptionAt(2), "Cop&y");
  const Object cut = GetObject(Controls(), "Item", {"Cut"});
  EXPECT_EQ(Get(cut, "BuiltIn"), Variant(true));
  EXPECT_EQ(GetText(cut, "Tag"), "");
}

TEST_F(LibreOfficeMenus, TheOfficesOwnEntriesStay) {
  const Object cut = GetObject(Controls(), "Item", {"Cut"});
  EXPECT_EQ(ErrorNumberOf([&] { Call(cut, "Delete"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Let(cut, "Caption", "Other"); }), kRefused);
  EXPECT_EQ(CaptionAt(1), "&Cut");
}

TEST_F(LibreOfficeMenus, AnEntryGoesAheadOfAPositionOrACaptionOrToTheEnd) {
  const std::int32_t before = GetLong(Controls(), "Count");
  Add("First", 1);
  Add("Ahead of copy", "Copy");
  Call(Items(), "Add", {"Last"});
  EXPECT_EQ(CaptionAt(1), "First");
  EXPECT_EQ(CaptionAt(2), "&Cut");
  EXPECT_EQ(CaptionAt(3), "Ahead of copy");
  EXPECT_EQ(CaptionAt(before + 3), "Last");
  EXPECT_EQ(ErrorNumberOf([] { Add("Lost", "No such entry"); }), kNoSuchElement);
  EXPECT_EQ(ErrorNumberOf([] { Add("Lost", 0); }), kNoSuchElement);
  EXPECT_EQ(GetLong(Controls(), "Count"), before + 3);
}

TEST_F(LibreOfficeMenus, OnlyTheBarAndTheMenuOfTheCellsAreThere) {
  const Object application = SharedOffice().Application();
  EXPECT_EQ(ErrorNumberOf([&] { GetObject(application, "CommandBars", {"Row"}); }), kNoSuchElement);
  EXPECT_EQ(ErrorNumberOf([&] { GetObject(application, "CommandBars", {2}); }), kNoSuchElement);
  EXPECT_EQ(ErrorNumberOf([&] { GetObject(application, "ShortcutMenus", {4}); }), kNoSuchElement);
}

TEST_F(LibreOfficeMenus, ADeletedEntryIsRefusedEverything) {
  const Object control = Add("Brow&se Records", 1);
  Call(control, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(control, "Caption"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(control, "Delete"); }), kRefused);
  EXPECT_EQ(CaptionAt(1), "&Cut");
}

TEST_F(LibreOfficeMenus, AChoiceIsToldToTheHandlerWithWhatTheEntryCarries) {
  const Object control = Add("Brow&se Records", 1);
  Let(control, "Tag", "Interface.Browse");
  Let(control, "OnAction", "BrowseRecords");
  ASSERT_TRUE(Choose(book_, CommandOf("Browse Records")));
  EXPECT_THAT(told_, IsEmpty()) << "nothing is told before the caller asks";
  EXPECT_EQ(SharedOffice().TellMenuChoices(kPatience), 1U);
  EXPECT_THAT(told_, ElementsAre("Brow&se Records/Interface.Browse/BrowseRecords"));
  EXPECT_EQ(SharedOffice().TellMenuChoices(), 0U);
}

TEST_F(LibreOfficeMenus, AChoiceRaisesClickOfTheControl) {
  const Object control = Add("Brow&se Records", 1);
  std::vector<std::string> events;
  const auto connection = control.Connect([&](automation::Member event,
                                              std::span<const automation::Argument> arguments) {
    events.push_back(event.Name() + " " + GetText(arguments.front().Value().AsObject(), "Caption"));
  });
  Choose(book_, CommandOf("Browse Records"));
  SharedOffice().TellMenuChoices(kPatience);
  EXPECT_THAT(events, ElementsAre("Click Brow&se Records"));
}

TEST_F(LibreOfficeMenus, EveryWindowLeadsToTheHandlerAlsoOneThatIsOpenedLater) {
  Add("Brow&se Records", 1);
  const std::string command = CommandOf("Browse Records");
  const Object later = SharedOffice().NewWorkbook({"Later"});
  EXPECT_TRUE(Choose(book_, command));
  EXPECT_TRUE(Choose(later, command));
  EXPECT_EQ(SharedOffice().TellMenuChoices(kPatience), 2U);
}

TEST_F(LibreOfficeMenus, OtherCommandsGoTheirOwnWay) {
  Add("Brow&se Records", 1);
  EXPECT_TRUE(Choose(book_, ".uno:SelectAll"));
  EXPECT_EQ(SharedOffice().TellMenuChoices(), 0U);
}

TEST_F(LibreOfficeMenus, AnEntryThatWasDeletedBeforeItsChoiceIsToldIsNotTold) {
  const Object control = Add("Brow&se Records", 1);
  Choose(book_, CommandOf("Browse Records"));
  Call(control, "Delete");
  EXPECT_EQ(SharedOffice().TellMenuChoices(), 0U);
  EXPECT_THAT(told_, IsEmpty());
}

}  // namespace
}  // namespace rangewerks::tests
