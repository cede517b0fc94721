#include "systems/posix/desktop_mail.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks::systems {
namespace {

using automation::Error;
using automation::ErrorNumber;
using automation::MemberTable;
using automation::Object;

constexpr int kCouldNotExecute = 127;

/// Runs a program, found in PATH, until it ends, and returns its exit status; -1 when a signal has
/// ended it. No shell sees the arguments. Raises 429 when it can't be started.
int Run(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ) != 0) {
    throw Error(ErrorNumber::CannotCreateObject);
  }
  int status = 0;
  pid_t ended = 0;
  do {
    ended = waitpid(child, &status, 0);
  } while (ended == -1 && errno == EINTR);
  return ended == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

void MailItem::Send() const {
  const int status = Run({"xdg-email", "--utf8", "--subject", subject_, "--body", body_, to_});
  if (status == kCouldNotExecute) throw Error(ErrorNumber::CannotCreateObject);
  if (status != 0) {
    throw Error(
        ErrorNumber::ApplicationDefined,
        "The mail program didn't take the mail: xdg-email ended with " + std::to_string(status));
  }
}

Object DesktopMail::GetNamespace(const std::string& Type) {
  if (!automation::EqualText(Type, "MAPI")) throw Error(ErrorNumber::InvalidProcedureCall);
  return {std::make_shared<MailNamespace>()};
}

Object DesktopMail::CreateItem(std::int32_t ItemType) {
  if (ItemType != 0) throw Error(ErrorNumber::InvalidProcedureCall);
  return {std::make_shared<MailItem>()};
}

const MemberTable& MailItem::Members() const {
  static const char* const kTo = "The addresses that the mail goes to.";
  static const char* const kSubject = "Its subject.";
  static const char* const kBody = "Its text.";
  static const MemberTable table =
      MemberTable::For<MailItem>("MailItem")
          .Get(1, "To", &MailItem::get_To, kTo)
          .Let(1, "To", &MailItem::let_To, kTo)
          .Get(2, "Subject", &MailItem::get_Subject, kSubject)
          .Let(2, "Subject", &MailItem::let_Subject, kSubject)
          .Get(3, "Body", &MailItem::get_Body, kBody)
          .Let(3, "Body", &MailItem::let_Body, kBody)
          .Method(4, "Send", &MailItem::Send, {}, "Gives the mail to the mail program.");
  return table;
}

const MemberTable& MailNamespace::Members() const {
  static const MemberTable table =
      MemberTable::For<MailNamespace>("NameSpace")
          .Method(1, "Logon", &MailNamespace::Logon, {}, "Does nothing: nobody is logged off.")
          .Method(2, "Logoff", &MailNamespace::Logoff, {}, "Does nothing.");
  return table;
}

const MemberTable& DesktopMail::Members() const {
  static const MemberTable table =
      MemberTable::For<DesktopMail>("Application")
          .Method(1, "GetNamespace", &DesktopMail::GetNamespace, {{"Type"}},
                  "The session with the mail program.")
          .Method(2, "CreateItem", &DesktopMail::CreateItem, {{"ItemType"}}, "Makes a mail.");
  return table;
}

}  // namespace rangewerks::systems
