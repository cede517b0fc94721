// The desktop's mail program, to callers who know another: so much of Outlook's object model as it
// takes to write a mail.
//
//   Object outlook(std::make_shared<DesktopMail>());
//   Object mail = outlook.Call(Member("CreateItem"), {0}).AsObject();
//   mail.Let(Member("To"), "support@example.org");
//   mail.Call(Member("Send"));
#pragma once

#include <cstdint>
#include <string>

#include "automation/member_table.h"

namespace rangewerks::systems {

/// One mail. Texts are empty until they are given.
class MailItem final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  const std::string& get_To() const { return to_; }
  void let_To(const std::string& value) { to_ = value; }
  const std::string& get_Subject() const { return subject_; }
  void let_Subject(const std::string& value) { subject_ = value; }
  const std::string& get_Body() const { return body_; }
  void let_Body(const std::string& value) { body_ = value; }
  /// Gives the mail to the program that the desktop's `xdg-email` finds, which shows it to the
  /// person to be sent. Returns when that has taken it. Raises 429 when xdg-email can't be started,
  /// and 1004 when it fails.
  void Send() const;

 private:
  std::string to_;
  std::string subject_;
  std::string body_;
};

/// The person is logged on to their mail program as it is.
class MailNamespace final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  static void Logon() {}
  static void Logoff() {}
};

class DesktopMail final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  /// Raises 5 for a type other than "MAPI".
  static automation::Object GetNamespace(const std::string& Type);
  /// Raises 5 for an item other than 0, a mail.
  static automation::Object CreateItem(std::int32_t ItemType);
};

}  // namespace rangewerks::systems
