// The menu bar of a form.
//
//   forms::MenuEntry mnuTools{*this, "mnuTools", "&Tools"};
//   forms::MenuEntry mnuCopySheet{mnuTools, "mnuCopySheet", "Copy Sheet"};
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace rangewerks::forms {

class Form;

class MenuEntry {
 public:
  /// An entry of the bar.
  MenuEntry(Form& form, std::string name, std::string caption);
  /// An entry in another's menu. The caption "-" is a line between entries.
  MenuEntry(MenuEntry& parent, std::string name, std::string caption);
  MenuEntry(const MenuEntry&) = delete;
  MenuEntry& operator=(const MenuEntry&) = delete;
  ~MenuEntry();

  const std::string& get_Name() const { return name_; }
  const std::string& get_Caption() const;
  void let_Caption(const std::string& value);
  bool get_Enabled() const;
  void let_Enabled(bool value);
  bool get_Checked() const;
  void let_Checked(bool value);

  /// The person has chosen the entry.
  std::function<void()> Click;

  // --- for the window that shows the menu ------------------------------------------------------

  struct State {
    std::string caption;
    bool enabled = true;
    bool checked = false;
  };
  /// As it is now, without loading the form.
  const State& Properties() const { return now_; }
  const std::vector<MenuEntry*>& Entries() const { return entries_; }
  bool IsSeparator() const { return now_.caption == "-"; }
  /// Whether a person could choose it now: its form is shown, and neither itself nor an entry that
  /// it stands in is disabled.
  bool IsUsable() const;
  void PersonClicked();

 private:
  friend class Form;
  void Reset();
  template <class T>
  void Write(T State::*property, const T& value);

  Form* form_;
  const MenuEntry* above_ = nullptr;
  std::vector<MenuEntry*>* siblings_;
  std::string name_;
  std::string design_;
  State now_;
  std::vector<MenuEntry*> entries_;
};

}  // namespace rangewerks::forms
