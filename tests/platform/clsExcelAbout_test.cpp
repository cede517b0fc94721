#include "platform/clsExcelAbout.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktops/headless/headless_desktop.h"
#include "platform/frmExcelAbout.h"
#include "support/control_names.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using automation::Variant;
using desktops::HeadlessDesktop;
using platform::Registry;
using Paths = std::vector<std::string>;

const std::string kProgramKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
const std::string kUnavailable = "System Information Is Unavailable At This Time";

class ClsExcelAbout : public ::testing::Test {
 protected:
  /// Shows the box with the person's part in it.
  void Show(const std::function<void(frmExcelAbout&)>& person) {
    desktop->WhenShown<frmExcelAbout>([&](frmExcelAbout& form) {
      person(form);
      if (form.IsVisible()) desktop->Click(form.cmdOK);
    });
    about.Show();
  }
  void ClickSysInfo() {
    Show([&](frmExcelAbout& form) { desktop->Click(form.cmdSysInfo); });
  }
  void Put(const std::string& key, const std::string& name, std::uint32_t type,
           const std::string& bytes) const {
    system->Settings()->PutRaw(Registry::kLocalMachine, key, name, type, bytes);
  }
  void PutText(const std::string& key, const std::string& name, const std::string& text) const {
    Put(key, name, Registry::kTypeText, text + '\0');
  }
  void ExpectUnavailable() const {
    ASSERT_EQ(desktop->Messages().size(), 1U);
    EXPECT_EQ(desktop->Messages().front().text, kUnavailable);
    EXPECT_EQ(desktop->Messages().front().flags, 0);
    EXPECT_EQ(desktop->Messages().front().title, "");
  }

  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("C:\\lib\\Rangewerks.dll");
  clsExcelAbout about{desktop, system};
};

TEST_F(ClsExcelAbout, KeepsItsFiveTexts) {
  EXPECT_EQ(about.get_Description(), "");
  about.let_Description("a");
  about.let_Disclaimer("b");
  about.let_Copyright("c");
  about.let_ProductName("d");
  about.let_Version("e");
  EXPECT_EQ(about.get_Description(), "a");
  EXPECT_EQ(about.get_Disclaimer(), "b");
  EXPECT_EQ(about.get_Copyright(), "c");
  EXPECT_EQ(about.get_ProductName(), "d");
  EXPECT_EQ(about.get_Version(), "e");
}

TEST_F(ClsExcelAbout, ShowsTheTextsOnItsForm) {
  about.let_Description("Posts journals");
  about.let_Disclaimer("Warning: tests only");
  about.let_Copyright("Nobody's");
  about.let_ProductName("Journals & Orders");
  about.let_Version("2.1");
  Show([](frmExcelAbout& form) {
    EXPECT_EQ(form.get_Caption(), "About Journals & Orders");
    EXPECT_EQ(form.lblTitle.get_Caption(), "Journals & Orders");
    EXPECT_EQ(form.txtVersion.get_Text(), "2.1");
    EXPECT_EQ(form.lblDisclaimer.get_Caption(), "Warning: tests only");
    EXPECT_EQ(form.lblDescription.get_Caption(), "Posts journals");
  });
}

TEST_F(ClsExcelAbout, ShowsEmptyTextsAsEmptyLabelsAndKeepsTheBlankOfItsCaption) {
  Show([](frmExcelAbout& form) {
    EXPECT_EQ(form.get_Caption(), "About ");
    EXPECT_EQ(form.lblTitle.get_Caption(), "");
    EXPECT_EQ(form.txtVersion.get_Text(), "");
    EXPECT_EQ(form.lblDisclaimer.get_Caption(), "");
    EXPECT_EQ(form.lblDescription.get_Caption(), "");
  });
}

TEST_F(ClsExcelAbout, IsCalledByName) {
  const Object late = std::make_shared<clsExcelAbout>(desktop, system);
  for (const char* name : {"Description", "Disclaimer", "Copyright", "ProductName", "Version"}) {
    late.Let(Member(name), name);
    EXPECT_EQ(late.Get(Member(name)), Variant(name));
  }
  desktop->WhenShown<frmExcelAbout>([&](frmExcelAbout& form) {
    EXPECT_EQ(form.get_Caption(), "About ProductName");
    desktop->PressEscape(form);
  });
  late.Call(Member("Show"));
  EXPECT_EQ(desktop->FormsShown(), Paths({"frmExcelAbout"}));
}

TEST_F(ClsExcelAbout, ListsItsMembersInTheirOrder) {
  Paths members;
  for (const auto& entry : about.Members().Entries()) {
    if (entry.kind != automation::CallKind::Let) members.push_back(entry.name.Name());
  }
  EXPECT_EQ(members,
            Paths({"Description", "Disclaimer", "Copyright", "ProductName", "Version", "Show"}));
}

TEST(FrmExcelAbout, HasItsDesignTextsAndSigns) {
  HeadlessDesktop desktop;
  frmExcelAbout form(desktop, std::make_shared<FixedSystem>("Rangewerks.dll"));
  EXPECT_EQ(form.get_Caption(), "About");
  EXPECT_EQ(form.picIcon.Properties().picture, forms::Picture::Product);
  EXPECT_EQ(form.lblTitle.get_Caption(), "Application Title");
  EXPECT_EQ(form.txtVersion.get_Text(), "");
  EXPECT_EQ(form.lblDescription.get_Caption(), "App Description");
  EXPECT_EQ(form.lblDisclaimer.get_Caption(), "Warning: ...");
  EXPECT_EQ(form.cmdOK.get_Caption(), "OK");
  EXPECT_EQ(form.cmdSysInfo.get_Caption(), "&System Info...");
  EXPECT_EQ(form.Line1.Kind(), forms::ControlKind::Line);
  EXPECT_EQ(form.SecondLine1.Kind(), forms::ControlKind::Line);
}

TEST(FrmExcelAbout, HasItsControlsByNameInTheTabOrder) {
  HeadlessDesktop desktop;
  const frmExcelAbout form(desktop, std::make_shared<FixedSystem>("Rangewerks.dll"));
  EXPECT_EQ(ControlNames(form), std::vector<std::string>({"picIcon", "lblTitle", "txtVersion",
                                                          "Line1", "lblDescription", "Line1",
                                                          "lblDisclaimer", "cmdOK", "cmdSysInfo"}));
}

TEST_F(ClsExcelAbout, StartsTheProgramWhosePathIsStored) {
  PutText(kProgramKey, "PATH", "C:\\Tools\\info.exe");
  system->AddFile("C:\\Tools\\info.exe");
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({"C:\\Tools\\info.exe"}));
  EXPECT_TRUE(desktop->Messages().empty());
}

TEST_F(ClsExcelAbout, StartsTheProgramInTheStoredFolderWithoutAPath) {
  PutText(kFolderKey, "MSINFO", "C:\\Shared");
  system->AddFile("C:\\Shared\\MSINFO32.EXE");
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({"C:\\Shared\\MSINFO32.EXE"}));
  EXPECT_TRUE(desktop->Messages().empty());
  EXPECT_EQ(system->Settings()->Reads(), Paths({kProgramKey + "|PATH", kFolderKey + "|MSINFO"}));
}

TEST_F(ClsExcelAbout, SaysThatThereIsNoInformationWithNeitherKey) {
  ClickSysInfo();
  ExpectUnavailable();
  EXPECT_TRUE(system->Started().empty());
}

TEST_F(ClsExcelAbout, SaysThatThereIsNoInformationWhenTheFileIsMissing) {
  PutText(kFolderKey, "MSINFO", "C:\\Shared");
  ClickSysInfo();
  ExpectUnavailable();
  EXPECT_TRUE(system->Started().empty());
}

TEST_F(ClsExcelAbout, SaysThatThereIsNoInformationWhenTheProgramDoesntStart) {
  PutText(kProgramKey, "PATH", "C:\\gone.exe");
  PutText(kFolderKey, "MSINFO", "C:\\Shared");
  system->AddFile("C:\\Shared\\MSINFO32.EXE");
  ClickSysInfo();
  ExpectUnavailable();
  EXPECT_EQ(system->Started(), Paths({"C:\\gone.exe"}));
}

TEST_F(ClsExcelAbout, StaysOpenBehindTheMessageThatThereIsNoInformation) {
  Show([&](frmExcelAbout& form) {
    desktop->Click(form.cmdSysInfo);
    EXPECT_TRUE(form.IsVisible());
  });
}

TEST_F(ClsExcelAbout, TakesAValueWithoutAZeroBehindItAsItIs) {
  Put(kProgramKey, "PATH", Registry::kTypeText, "info");
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({"info"}));
}

TEST_F(ClsExcelAbout, CutsOnlyOneZeroBehindAText) {
  Put(kProgramKey, "PATH", Registry::kTypeText, std::string("info\0\0", 6));
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({std::string("info\0", 5)}));
}

TEST_F(ClsExcelAbout, TakesAStoredNumberAsItsDecimalText) {
  Put(kProgramKey, "PATH", Registry::kTypeNumber, std::string("\x34\x12\x00\x00", 4));
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({"4660"}));
}

TEST_F(ClsExcelAbout, WritesEachByteOfANumberWithoutALeadingZero) {
  // 0x0105 is written as "0" "1" "5" behind the zero that is cut: 0x15.
  Put(kProgramKey, "PATH", Registry::kTypeNumber, std::string("\x05\x01\x00\x00", 4));
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({"21"}));
}

TEST_F(ClsExcelAbout, TakesAValueOfAnotherTypeForAnEmptyPath) {
  Put(kProgramKey, "PATH", 3, "C:\\Tools\\info.exe");
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({""}));
  ExpectUnavailable();
}

TEST_F(ClsExcelAbout, TakesAValueOfMoreThan1024BytesForMissing) {
  PutText(kProgramKey, "PATH", std::string(1023, 'x'));
  ClickSysInfo();
  EXPECT_EQ(system->Started(), Paths({std::string(1023, 'x')}));
  PutText(kProgramKey, "PATH", std::string(1024, 'x'));
  ClickSysInfo();
  EXPECT_EQ(system->Started().size(), 1U);
}

}  // namespace
}  // namespace rangewerks::tests
