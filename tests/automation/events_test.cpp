#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Connection;
using automation::ErrorNumber;
using automation::EventHandler;
using automation::EventSource;
using automation::Invocation;
using automation::Member;
using automation::Object;
using automation::Variant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Member kClosed{"Closed"};

class Events : public ::testing::Test {
 protected:
  EventHandler Noting(const std::string& who) {
    return [this, who](Member event, std::span<const Argument> /*arguments*/) {
      calls_.push_back(who + " " + event.Name());
    };
  }
  void Raise() { source_->Raise(kClosed, {}); }

  std::optional<EventSource> source_{std::in_place};
  std::vector<std::string> calls_;
};

TEST_F(Events, ReachEachHandlerOnceInTheOrderOfConnecting) {
  const Connection first = source_->Connect(Noting("first"));
  const Connection second = source_->Connect(Noting("second"));
  Raise();
  EXPECT_THAT(calls_, ElementsAre("first Closed", "second Closed"));
}

TEST_F(Events, ReachNobodyWithoutAConnection) {
  Raise();
  source_->Connect(Noting("dropped at once"));
  Raise();
  EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(Events, StopWhenTheConnectionIsDropped) {
  std::optional<Connection> connection = source_->Connect(Noting("handler"));
  Raise();
  connection.reset();
  Raise();
  EXPECT_THAT(calls_, ElementsAre("handler Closed"));
}

TEST_F(Events, FollowAConnectionThatMoves) {
  Connection first = source_->Connect(Noting("handler"));
  Connection second = std::move(first);
  Raise();
  second = source_->Connect(Noting("another"));
  Raise();
  second.Disconnect();
  second.Disconnect();
  Raise();
  EXPECT_THAT(calls_, ElementsAre("handler Closed", "another Closed"));
}

TEST_F(Events, DontReachAHandlerThatAnEarlierOneDisconnected) {
  Connection second;
  const Connection first = source_->Connect([&](Member /*event*/, std::span<const Argument>) {
    calls_.emplace_back("first");
    second.Disconnect();
  });
  second = source_->Connect(Noting("second"));
  Raise();
  EXPECT_THAT(calls_, ElementsAre("first"));
}

TEST_F(Events, LetAHandlerDisconnectItself) {
  Connection own;
  own = source_->Connect([&](Member /*event*/, std::span<const Argument>) {
    calls_.emplace_back("once");
    own.Disconnect();
  });
  const Connection other = source_->Connect(Noting("other"));
  Raise();
  Raise();
  EXPECT_THAT(calls_, ElementsAre("once", "other Closed", "other Closed"));
}

TEST_F(Events, DontReachAHandlerThatConnectsDuringTheEvent) {
  std::vector<Connection> later;
  const Connection first = source_->Connect([&](Member /*event*/, std::span<const Argument>) {
    later.push_back(source_->Connect(Noting("later")));
  });
  Raise();
  EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(Events, LetAHandlerDropTheSource) {
  const Connection first =
      source_->Connect([&](Member /*event*/, std::span<const Argument>) { source_.reset(); });
  const Connection second = source_->Connect(Noting("second"));
  Raise();
  EXPECT_THAT(calls_, ElementsAre("second Closed"));
}

TEST_F(Events, LetAConnectionOutliveTheSource) {
  Connection connection = source_->Connect(Noting("handler"));
  source_.reset();
  connection.Disconnect();
  EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(Events, CarryArgumentsThatHandlersCanWriteTo) {
  const Connection connection =
      source_->Connect([](Member /*event*/, std::span<const Argument> arguments) {
        arguments[1].Assign(arguments[0].Value());
      });
  Variant answer;
  const std::vector<Argument> arguments = {Argument("asked"), Argument::Reference(answer)};
  source_->Raise(kClosed, arguments);
  EXPECT_EQ(answer, Variant("asked"));
}

class Silent final : public automation::Dispatch {
 public:
  std::string TypeName() const override { return "Silent"; }
  Variant Invoke(const Invocation& /*call*/) override { return {}; }
};

TEST(ObjectsWithoutEvents, RefuseToConnect) {
  const Object object = std::make_shared<Silent>();
  EXPECT_TRUE(ErrorOf([&] { object.Connect({}); }).Is(ErrorNumber::NoSuchEvents));
}

TEST(ObjectsWithoutElements, RefuseToEnumerate) {
  const Object object = std::make_shared<Silent>();
  EXPECT_TRUE(ErrorOf([&] { object.Enumerate(); }).Is(ErrorNumber::NotACollection));
  EXPECT_TRUE(ErrorOf([] { Object().Enumerate(); }).Is(ErrorNumber::ObjectVariableNotSet));
}

TEST(SnapshotEnumerator, GivesItsElementsAndThenLeavesTheVariableAlone) {
  automation::SnapshotEnumerator walk({1, "two"});
  Variant element;
  EXPECT_TRUE(walk.Next(element));
  EXPECT_EQ(element, Variant(1));
  EXPECT_TRUE(walk.Next(element));
  EXPECT_EQ(element, Variant("two"));
  EXPECT_FALSE(walk.Next(element));
  EXPECT_EQ(element, Variant("two"));
}

}  // namespace
}  // namespace rangewerks::tests
