// Mails through the desktop's mail program: a script of the test stands for xdg-email and writes
// down its arguments.
#include "systems/posix/desktop_mail.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "automation/variant.h"
#include "support/environment.h"
#include "support/error_of.h"
#include "systems/posix/posix_system.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using systems::PosixSystem;

class DesktopMails : public ::testing::Test {
 protected:
  ~DesktopMails() override { std::filesystem::remove_all(folder_); }

  /// A program that writes each of its arguments down with a NUL behind, and ends with `status`.
  void InstallMailer(int status) const {
    const std::string file = folder_ + "/xdg-email";
    std::ofstream(file) << "#!/bin/sh\nprintf '%s\\0' \"$@\" >'" << folder_ << "/arguments'\nexit "
                        << status << "\n";
    ASSERT_EQ(chmod(file.c_str(), S_IRWXU), 0);
  }
  std::string Arguments() const {
    std::ifstream file(folder_ + "/arguments", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static Object NewMail() {
    const Object mail = PosixSystem()
                            .CreateObject("outlook.application")
                            .Call(Member("CreateItem"), {0})
                            .AsObject();
    mail.Let(Member("To"), "support@example.org");
    mail.Let(Member("Subject"), "It's $HOME; `rm`");
    mail.Let(Member("Body"), "line 1\r\n\"line\" 2 é");
    return mail;
  }

 private:
  static std::string NewFolder() {
    std::string name = std::filesystem::temp_directory_path() / "rangewerks-mail-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::filesystem::filesystem_error(name, {});
    return name;
  }

  std::string folder_ = NewFolder();
  // The folder alone: no mail program of this machine is ever started.
  Setting path_{"PATH", folder_.c_str()};
};

TEST_F(DesktopMails, GoToTheMailProgramAsTheyAre) {
  InstallMailer(0);
  NewMail().Call(Member("sEnd"));
  using namespace std::string_literals;
  EXPECT_EQ(Arguments(),
            "--utf8\0--subject\0It's $HOME; `rm`\0--body\0line 1\r\n\"line\" 2 é\0"
            "support@example.org\0"s);
}

TEST_F(DesktopMails, FailWhenThereIsNoMailProgram) {
  const Object mail = NewMail();
  EXPECT_EQ(ErrorOf([&] { mail.Call(Member("Send")); }).Number(), 429);
}

TEST_F(DesktopMails, FailWhenTheMailProgramDoes) {
  InstallMailer(3);
  const Object mail = NewMail();
  const automation::Error error = ErrorOf([&] { mail.Call(Member("Send")); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "The mail program didn't take the mail: xdg-email ended with 3");
}

TEST_F(DesktopMails, AreReadAsTheyWereWritten) {
  const Object mail = NewMail();
  EXPECT_EQ(mail.Get(Member("To")), automation::Variant("support@example.org"));
  EXPECT_EQ(mail.Get(Member("Subject")), automation::Variant("It's $HOME; `rm`"));
  EXPECT_EQ(mail.Get(Member("Body")), automation::Variant("line 1\r\n\"line\" 2 é"));
}

TEST_F(DesktopMails, BelongToASessionThatLogsOnAndOffWithoutMore) {
  const Object outlook = PosixSystem().CreateObject("Outlook.Application");
  EXPECT_EQ(outlook.TypeName(), "Application");
  const Object session = outlook.Call(Member("GetNamespace"), {"MAPI"}).AsObject();
  EXPECT_TRUE(session.Call(Member("Logon")).IsEmpty());
  EXPECT_TRUE(session.Call(Member("Logoff")).IsEmpty());
}

TEST_F(DesktopMails, AreAllThatTheProgramKnows) {
  const Object outlook = PosixSystem().CreateObject("Outlook.Application");
  EXPECT_EQ(ErrorOf([&] { outlook.Call(Member("GetNamespace"), {"Other"}); }).Number(), 5);
  EXPECT_EQ(ErrorOf([&] { outlook.Call(Member("CreateItem"), {1}); }).Number(), 5);
}

TEST(PosixSystem, HasNoOtherObjectsByName) {
  const automation::Error error = ErrorOf([] { PosixSystem().CreateObject("Excel.Application"); });
  EXPECT_EQ(error.Number(), 429);
  EXPECT_EQ(error.Description(), "ActiveX component can't create object");
}

}  // namespace
}  // namespace rangewerks::tests
