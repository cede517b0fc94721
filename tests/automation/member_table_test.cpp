#include "automation/member_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::AutomationClass;
using automation::Error;
using automation::ErrorNumber;
using automation::Member;
using automation::MemberTable;
using automation::Object;
using automation::TypeCode;
using automation::Variant;
using ::testing::ElementsAre;

/// A public class with a member of every kind.
class Account : public AutomationClass {
 public:
  const MemberTable& Members() const override {
    static const MemberTable table =
        MemberTable::For<Account>("Account")
            .Get(0, "Name", &Account::get_Name, "The name.")
            .Let(0, "Name", &Account::let_Name, "The name.")
            .Get(1, "Balance", &Account::get_Balance, "The balance.")
            .Get(2, "Entry", &Account::get_Entry, {{"lIndex"}}, "One entry.")
            .Set(3, "Owner", &Account::set_Owner, "The owner.")
            .Get(3, "Owner", &Account::get_Owner, "The owner.")
            .Method(4, "Book", &Account::Book, {{"dAmount"}, {"sText", "no text"}, {"lTimes", 1}},
                    "Books an amount.")
            .Method(5, "Split", &Account::Split, {{"dAmount"}, {"dHalf"}}, "Halves an amount.")
            .Method(6, "Close", &Account::Close, {}, "Closes the account.");
    return table;
  }

  std::string get_Name() const { return name_; }
  void let_Name(const std::string& name) { name_ = name; }
  double get_Balance() const { return balance_; }
  std::string get_Entry(std::int32_t index) const { return "entry " + std::to_string(index); }
  Object get_Owner() const { return owner_; }
  void set_Owner(const Object& owner) { owner_ = owner; }
  std::string Book(double amount, const std::string& text, std::int32_t times) {
    balance_ += amount * times;
    return text;
  }
  bool Split(double amount, double& half) {
    half = amount / 2;
    if (amount < 0) throw Error(ErrorNumber::InvalidProcedureCall);
    return true;
  }
  void Close() { balance_ = 0; }

 private:
  std::string name_ = "cash";
  double balance_ = 0;
  Object owner_;
};

/// A public class with the members of another and one more.
class DepositAccount final : public Account {
 public:
  const MemberTable& Members() const override {
    static const MemberTable table =
        MemberTable::Extending<DepositAccount>(Account::Members())
            .Get(7, "Rate", &DepositAccount::get_Rate, "The interest.");
    return table;
  }

  double get_Rate() const { return 1.5; }
};

const Member kName{"Name"};
const Member kBalance{"Balance"};
const Member kEntry{"Entry"};
const Member kOwner{"Owner"};
const Member kBook{"Book"};
const Member kSplit{"Split"};
const Member kClose{"Close"};

class MemberTables : public ::testing::Test {
 protected:
  std::shared_ptr<Account> account_ = std::make_shared<Account>();
  Object object_ = account_;

  template <class Action>
  static void ExpectRaises(ErrorNumber number, const Action& action) {
    EXPECT_EQ(ErrorOf(action).Number(), static_cast<int>(number));
  }
};

TEST_F(MemberTables, ReadAndWriteProperties) {
  EXPECT_EQ(object_.Get(kName), Variant("cash"));
  object_.Let(kName, "bank");
  EXPECT_EQ(account_->get_Name(), "bank");
  EXPECT_EQ(object_.Get(kEntry, {3}), Variant("entry 3"));
  EXPECT_EQ(object_.TypeName(), "Account");
}

TEST_F(MemberTables, FindMembersWhateverTheCaseOfTheirNames) {
  EXPECT_EQ(object_.Get(Member("bALANCE")), Variant(0.0));
}

TEST_F(MemberTables, SetObjects) {
  EXPECT_EQ(object_.Get(kOwner), Variant(Object()));
  object_.Set(kOwner, object_);
  EXPECT_EQ(object_.Get(kOwner), Variant(object_));
  object_.Set(kOwner, Object());
  EXPECT_EQ(object_.Get(kOwner), Variant(Object()));
}

TEST_F(MemberTables, TakeTheMemberWithIdentifierZeroForTheDefault) {
  EXPECT_EQ(object_.Get(Member::Default()), Variant("cash"));
  object_.Let(Member::Default(), "bank");
  EXPECT_EQ(account_->get_Name(), "bank");
  EXPECT_EQ(automation::ToString(object_, automation::Locale()), "bank");
}

TEST_F(MemberTables, PlacePositionalArgumentsAndFillDefaults) {
  EXPECT_EQ(object_.Call(kBook, {10.5}), Variant("no text"));
  EXPECT_EQ(object_.Call(kBook, {1, "text"}), Variant("text"));
  EXPECT_EQ(object_.Call(kBook, {1, "text", 3}), Variant("text"));
  EXPECT_EQ(account_->get_Balance(), 14.5);
}

TEST_F(MemberTables, TakeTheDefaultOfAnArgumentLeftOutInTheMiddle) {
  EXPECT_EQ(object_.Call(kBook, {5, Argument::Omitted(), 2}), Variant("no text"));
  EXPECT_EQ(account_->get_Balance(), 10);
}

TEST_F(MemberTables, PlaceNamedArguments) {
  EXPECT_EQ(object_.Call(kBook, {2}, {{Member("LTIMES"), 4}}), Variant("no text"));
  EXPECT_EQ(account_->get_Balance(), 8);
  object_.Call(kBook, {}, {{Member("lTimes"), 2}, {Member("dAmount"), 1}});
  EXPECT_EQ(account_->get_Balance(), 10);
}

TEST_F(MemberTables, RaiseWhatDoesntFit) {
  ExpectRaises(ErrorNumber::MemberNotFound, [&] { object_.Get(Member("Missing")); });
  ExpectRaises(ErrorNumber::MemberNotFound, [&] { object_.Let(kBalance, 5); });
  ExpectRaises(ErrorNumber::MemberNotFound, [&] { object_.Set(kName, object_); });
  ExpectRaises(ErrorNumber::NamedArgumentNotFound, [&] {
    object_.Call(kBook, {1}, {{Member("sWrong"), 1}});
  });
  ExpectRaises(ErrorNumber::ArgumentNotOptional, [&] { object_.Call(kBook); });
  ExpectRaises(ErrorNumber::ArgumentNotOptional,
               [&] { object_.Call(kBook, {Argument::Omitted()}); });
  ExpectRaises(ErrorNumber::ArgumentNotOptional, [&] { object_.Get(kEntry); });
  ExpectRaises(ErrorNumber::WrongNumberOfArguments, [&] { object_.Call(kBook, {1, "", 1, 1}); });
  ExpectRaises(ErrorNumber::WrongNumberOfArguments, [&] { object_.Call(kClose, {1}); });
  ExpectRaises(ErrorNumber::WrongNumberOfArguments, [&] {
    object_.Call(kBook, {1}, {{Member("dAmount"), 1}});
  });
  ExpectRaises(ErrorNumber::TypeMismatch, [&] { object_.Call(kBook, {"much"}); });
  ExpectRaises(ErrorNumber::ObjectVariableNotSet, [] { Object().Get(kName); });
  EXPECT_EQ(account_->get_Balance(), 0);
}

TEST_F(MemberTables, ConvertArgumentsToTheDeclaredTypes) {
  object_.Call(kBook, {"10.5", 7, 1.5});
  EXPECT_EQ(account_->get_Balance(), 21) << "one and a half times are two";
  object_.Let(kName, 12.5);
  EXPECT_EQ(account_->get_Name(), "12.5");
}

TEST_F(MemberTables, WriteBackToAVariableOfTheCaller) {
  Variant half = "before";
  ExpectRaises(ErrorNumber::TypeMismatch, [&] {
    object_.Call(kSplit, {5, Argument::Reference(half)});
  });
  EXPECT_EQ(half, Variant("before"));
  half = Variant();
  EXPECT_EQ(object_.Call(kSplit, {5, Argument::Reference(half)}), Variant(true));
  EXPECT_EQ(half, Variant(2.5));
}

TEST_F(MemberTables, WriteBackAlsoWhenTheMemberFails) {
  Variant half;
  ExpectRaises(ErrorNumber::InvalidProcedureCall, [&] {
    object_.Call(kSplit, {-4, Argument::Reference(half)});
  });
  EXPECT_EQ(half, Variant(-2.0));
}

TEST_F(MemberTables, LeaveAValueThatIsntAReferenceAlone) {
  EXPECT_EQ(object_.Call(kSplit, {5, 1.0}), Variant(true));
}

TEST_F(MemberTables, LetReadsAndMethodsAnswerForEachOther) {
  EXPECT_EQ(object_.Call(kName), Variant("cash"));
  EXPECT_EQ(object_.Call(kEntry, {1}), Variant("entry 1"));
  EXPECT_EQ(object_.Get(kBook, {1}), Variant("no text"));
}

TEST_F(MemberTables, GiveNothingForAMethodWithoutResult) {
  EXPECT_TRUE(object_.Call(kClose).IsEmpty());
}

TEST_F(MemberTables, TellTheirEntriesInDeclaredOrder) {
  const auto& entries = account_->Members().Entries();
  std::vector<std::string> names;
  for (const auto& entry : entries) {
    names.push_back(std::string(automation::KindName(entry.kind)) + " " + entry.name.Name());
  }
  EXPECT_THAT(names, ElementsAre("get Name", "let Name", "get Balance", "get Entry", "set Owner",
                                 "get Owner", "call Book", "call Split", "call Close"));
  EXPECT_EQ(entries[1].result, TypeCode::String) << "the type of the value written";
  EXPECT_TRUE(entries[1].arguments.empty());
  EXPECT_EQ(entries[8].result, TypeCode::Void);
  EXPECT_EQ(entries[6].help, "Books an amount.");
}

TEST_F(MemberTables, TellTheirClassAsANumberWhateverItsCase) {
  EXPECT_EQ(account_->Members().Type(), Member("aCCOUNT"));
}

TEST_F(MemberTables, OfAClassWithABaseClassHaveTheMembersOfBoth) {
  const auto deposit = std::make_shared<DepositAccount>();
  const Object object = deposit;
  object.Let(kName, "deposit");
  EXPECT_EQ(object.Get(Member::Default()), Variant("deposit"));
  EXPECT_EQ(object.Get(Member("Rate")), Variant(1.5));
  EXPECT_EQ(deposit->Members().Entries().size(), account_->Members().Entries().size() + 1);
  EXPECT_EQ(deposit->Members().Entries().back().id, 7);
  ExpectRaises(ErrorNumber::MemberNotFound, [&] { object_.Get(Member("Rate")); });
}

TEST_F(MemberTables, TellTheirArguments) {
  const auto& book = account_->Members().Entries().at(6);
  ASSERT_EQ(book.arguments.size(), 3U);
  EXPECT_EQ(book.id, 4);
  EXPECT_EQ(book.result, TypeCode::String);
  EXPECT_EQ(book.arguments[0].type, TypeCode::Double);
  EXPECT_FALSE(book.arguments[0].defaultValue);
  EXPECT_EQ(book.arguments[1].name.Name(), "sText");
  EXPECT_EQ(book.arguments[1].defaultValue, Variant("no text"));
  EXPECT_EQ(book.arguments[2].type, TypeCode::Long);
  const auto& split = account_->Members().Entries().at(7);
  EXPECT_FALSE(split.arguments.at(0).inOut);
  EXPECT_TRUE(split.arguments.at(1).inOut);
}

}  // namespace
}  // namespace rangewerks::tests
