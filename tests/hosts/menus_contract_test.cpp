// The menu that a right click on a cell opens.
#include <algorithm>

#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

using automation::Member;

constexpr const char* kCaption = "Brow&se Ledger";

class MenusContract : public HostContract {
 protected:
  /// Menus belong to the program, which other tests may share.
  void TearDown() override {
    while (const Object bar = BarWith(kCaption)) {
      Call(GetObject(bar, "Controls", {kCaption}), "Delete");
    }
  }

  Object Items() {
    return GetObject(GetObject(Application(), "ShortcutMenus", {excel::xlWorksheetCell}),
                     "MenuItems");
  }
  void AddEntry() { Items().Call(Member("Add"), {kCaption}, {{Member("Before"), 1}}); }

  /// The bars named "Cell".
  std::vector<Object> CellBars() {
    std::vector<Object> bars;
    for (const Variant& bar : Elements(GetObject(Application(), "CommandBars"))) {
      if (GetText(bar.AsObject(), "Name") == "Cell") bars.push_back(bar.AsObject());
    }
    return bars;
  }
  static std::vector<std::string> CaptionsOf(const Object& bar) {
    std::vector<std::string> captions;
    for (const Variant& control : Elements(GetObject(bar, "Controls"))) {
      captions.push_back(GetText(control.AsObject(), "Caption"));
    }
    return captions;
  }
  /// The first bar named "Cell" with an entry of exactly that caption, or none.
  Object BarWith(const std::string& caption) {
    for (const Object& bar : CellBars()) {
      const auto captions = CaptionsOf(bar);
      if (std::find(captions.begin(), captions.end(), caption) != captions.end()) return bar;
    }
    return {};
  }
};
CONTRACT_FOR_ALL_HOSTS(MenusContract);

TEST_P(MenusContract, TheConstantIsThePublishedNumber) { EXPECT_EQ(excel::xlWorksheetCell, 3); }

TEST_P(MenusContract, ABarIsNamedCellAndHasEntries) {
  ASSERT_FALSE(CellBars().empty());
  EXPECT_EQ(CellBars().front().TypeName(), "CommandBar");
  EXPECT_FALSE(CaptionsOf(CellBars().front()).empty());
}

TEST_P(MenusContract, AnEntryOfTheShortcutMenuIsTheFirstControlOfACellBar) {
  AddEntry();
  const Object bar = BarWith(kCaption);
  ASSERT_TRUE(bar);
  EXPECT_EQ(CaptionsOf(bar).front(), kCaption);
}

TEST_P(MenusContract, AControlIsFoundByItsCaption) {
  AddEntry();
  const Object control = GetObject(BarWith(kCaption), "Controls", {kCaption});
  EXPECT_EQ(GetText(control, "Caption"), kCaption);
  const Object again = GetObject(GetObject(BarWith(kCaption), "Controls"), "Item", {kCaption});
  EXPECT_EQ(GetText(again, "Caption"), kCaption);
}

TEST_P(MenusContract, AControlThatIsNotThereFails) {
  EXPECT_TRUE(Fails([&] { GetObject(CellBars().front(), "Controls", {"No such entry"}); }));
}

TEST_P(MenusContract, CaptionAndTagAreKept) {
  AddEntry();
  const Object control = GetObject(BarWith(kCaption), "Controls", {kCaption});
  Let(control, "Tag", "Zo\xC3\xAB.Browse");
  Let(control, "Caption", kCaption);
  const Object again = GetObject(BarWith(kCaption), "Controls", {kCaption});
  EXPECT_EQ(GetText(again, "Tag"), "Zo\xC3\xAB.Browse");
  Let(again, "Caption", "Brow&se Journal");
  EXPECT_FALSE(BarWith(kCaption));
  Let(again, "Caption", kCaption);
  EXPECT_TRUE(BarWith(kCaption));
}

TEST_P(MenusContract, DeleteRemovesTheEntry) {
  AddEntry();
  const Object bar = BarWith(kCaption);
  const std::size_t before = CaptionsOf(bar).size();
  Call(GetObject(bar, "Controls", {kCaption}), "Delete");
  EXPECT_FALSE(BarWith(kCaption));
  EXPECT_EQ(CaptionsOf(bar).size(), before - 1);
}

}  // namespace
}  // namespace rangewerks::tests
