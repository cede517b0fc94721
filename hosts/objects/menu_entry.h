// One entry of a menu, and the base of the objects that stand for one.
#pragma once

#include <string>

#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::objects {

/// What a person chooses is told to those connected to `events`.
struct MenuEntry {
  std::string caption;  ///< with "&" in front of the access key
  std::string tag;
  std::string onAction;  ///< name of a macro, which isn't run
  automation::EventSource events;
  bool deleted = false;
};

class MenuEntryObject : public HostObject {
 public:
  /// Name of a macro; no macros are run.
  void LetOnAction(const std::string& macro);

 protected:
  void RequireAlive() const final;

  virtual MenuEntry& Entry() const = 0;
  virtual void LetCaption(const std::string& caption) = 0;
  virtual void Remove() = 0;

  Variant GetCaption() const;
  Variant GetOnAction() const;
};

}  // namespace rangewerks::hosts::objects
