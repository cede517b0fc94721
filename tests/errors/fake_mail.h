// A mail program that writes down what is asked of it, and fails where a test wants it to.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::tests {

/// What all parts of the program share.
struct MailLog {
  /// One line each: `Application call GetNamespace "MAPI"`.
  std::vector<std::string> lines;
  /// The line at which it fails; empty for nowhere.
  std::string failsAt;
  /// Parts that are held by somebody.
  int alive = 0;
};

/// One part of the program: the application, its namespace or a mail item.
class FakeMail final : public automation::Dispatch {
 public:
  FakeMail(std::string name, std::shared_ptr<MailLog> log)
      : name_(std::move(name)), log_(std::move(log)) {
    ++log_->alive;
  }
  ~FakeMail() override { --log_->alive; }

  static automation::Object Application(const std::shared_ptr<MailLog>& log) {
    return {std::make_shared<FakeMail>("Application", log)};
  }

  std::string TypeName() const override { return name_; }
  automation::Variant Invoke(const automation::Invocation& call) override {
    using automation::Member;
    std::string line = name_ + " " + KindName(call.kind) + " " + call.member.Name();
    for (const automation::Argument& argument : call.positional) {
      const std::string text = ToString(argument.Value(), automation::Locale());
      line += argument.Value().IsString() ? " \"" + text + "\"" : " " + text;
    }
    log_->lines.push_back(line);
    if (!log_->failsAt.empty() && line.starts_with(log_->failsAt)) {
      throw automation::Error(1004, "Mail", "refused");
    }
    if (call.member == Member("GetNamespace")) return Part("NameSpace");
    if (call.member == Member("CreateItem")) return Part("MailItem");
    return {};
  }

 private:
  automation::Variant Part(const std::string& name) const {
    return automation::Object(std::make_shared<FakeMail>(name, log_));
  }

  std::string name_;
  std::shared_ptr<MailLog> log_;
};

}  // namespace rangewerks::tests
