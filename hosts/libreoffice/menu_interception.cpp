#include "hosts/libreoffice/menu_interception.h"

#include <algorithm>
#include <com/sun/star/container/XIndexContainer.hpp>
#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/frame/XDispatchProviderInterception.hpp>
#include <com/sun/star/frame/XDispatchProviderInterceptor.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XInterceptorInfo.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/ui/XContextMenuInterception.hpp>
#include <com/sun/star/ui/XContextMenuInterceptor.hpp>
#include <vector>

#include "cppuhelper/implbase1.hxx"
#include "cppuhelper/implbase2.hxx"

namespace rangewerks::hosts::libreoffice {
namespace {

using css::frame::XDispatch;
using css::frame::XDispatchProvider;
using css::ui::ContextMenuInterceptorAction;
using BoardPointer = std::shared_ptr<MenuBoard>;

/// The command that only the menu of the cells has among all menus of a sheet.
constexpr const char* kCommandOfCellMenu = ".uno:InsertCell";

/// "&" in front of an access key is "~" to the office.
OUString OfficeText(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const bool doubled = caption.substr(i).starts_with("&&");
    text += caption[i] == '&' && !doubled ? '~' : caption[i];
    if (doubled) ++i;
  }
  return ToUno(text);
}

/// The commands of a menu's entries; separators have none.
std::vector<std::string> CommandsOf(const Reference<css::container::XIndexContainer>& menu) {
  std::vector<std::string> commands;
  const std::int32_t count = menu->getCount();
  for (std::int32_t i = 0; i < count; ++i) {
    const auto entry = Extract<Reference<css::beans::XPropertySet>>(menu->getByIndex(i));
    const bool isEntry = entry->getPropertySetInfo()->hasPropertyByName(ToUno("CommandURL"));
    commands.push_back(isEntry ? ToUtf8(Property<OUString>(entry, "CommandURL")) : std::string());
  }
  return commands;
}

/// Adds entries to a menu that is about to open.
class MenuInterceptor final : public cppu::WeakImplHelper1<css::ui::XContextMenuInterceptor> {
 public:
  explicit MenuInterceptor(BoardPointer board) : board_(std::move(board)) {}

  ContextMenuInterceptorAction SAL_CALL
  notifyContextMenuExecute(const css::ui::ContextMenuExecuteEvent& event) override {
    const std::vector<ShownEntry> shown = board_->Shown();
    if (shown.empty()) return css::ui::ContextMenuInterceptorAction_IGNORED;
    std::vector<std::string> commands = CommandsOf(event.ActionTriggerContainer);
    if (std::find(commands.begin(), commands.end(), kCommandOfCellMenu) == commands.end()) {
      return css::ui::ContextMenuInterceptorAction_IGNORED;
    }
    for (const ShownEntry& entry : shown) Insert(event.ActionTriggerContainer, commands, entry);
    return css::ui::ContextMenuInterceptorAction_CONTINUE_MODIFIED;
  }

 private:
  static void Insert(const Reference<css::container::XIndexContainer>& menu,
                     std::vector<std::string>& commands, const ShownEntry& entry) {
    const auto trigger = Reference<css::beans::XPropertySet>(
        As<css::lang::XMultiServiceFactory>(menu)->createInstance(
            ToUno("com.sun.star.ui.ActionTrigger")),
        UNO_QUERY_THROW);
    const std::string command = kMenuProtocol + std::to_string(entry.id);
    trigger->setPropertyValue(ToUno("Text"), Any(OfficeText(entry.caption)));
    trigger->setPropertyValue(ToUno("CommandURL"), Any(ToUno(command)));
    const auto place = entry.before.empty()
                           ? commands.end()
                           : std::find(commands.begin(), commands.end(), entry.before);
    menu->insertByIndex(static_cast<std::int32_t>(place - commands.begin()), Any(trigger));
    commands.insert(place, command);
  }

  BoardPointer board_;
};

/// Carries out the choice of an entry.
class MenuDispatch final : public cppu::WeakImplHelper1<XDispatch> {
 public:
  explicit MenuDispatch(BoardPointer board) : board_(std::move(board)) {}

  void SAL_CALL dispatch(const css::util::URL& url,
                         const Sequence<css::beans::PropertyValue>& /*arguments*/) override {
    const OUString protocol = ToUno(kMenuProtocol);
    board_->Choose(url.Complete.copy(protocol.getLength()).toInt32());
  }
  // Entries are always enabled, which is what the office takes them for.
  void SAL_CALL addStatusListener(const Reference<css::frame::XStatusListener>& /*listener*/,
                                  const css::util::URL& /*url*/) override {}
  void SAL_CALL removeStatusListener(const Reference<css::frame::XStatusListener>& /*listener*/,
                                     const css::util::URL& /*url*/) override {}

 private:
  BoardPointer board_;
};

/// Stands in the chain of those who carry out a window's commands; asked for its own ones only.
class DispatchInterceptor final
    : public cppu::WeakImplHelper2<css::frame::XDispatchProviderInterceptor,
                                   css::frame::XInterceptorInfo> {
 public:
  explicit DispatchInterceptor(BoardPointer board) : board_(std::move(board)) {}

  Sequence<OUString> SAL_CALL getInterceptedURLs() override {
    return ToSequence<OUString>({ToUno(kMenuProtocol + std::string("*"))});
  }

  Reference<XDispatch> SAL_CALL queryDispatch(const css::util::URL& url, const OUString& target,
                                              sal_Int32 flags) override {
    if (url.Complete.startsWith(ToUno(kMenuProtocol))) return new MenuDispatch(board_);
    if (!next_.is()) return {};
    return next_->queryDispatch(url, target, flags);
  }
  Sequence<Reference<XDispatch>> SAL_CALL
  queryDispatches(const Sequence<css::frame::DispatchDescriptor>& asked) override {
    std::vector<Reference<XDispatch>> found;
    for (const auto& each : Elements(asked)) {
      found.push_back(queryDispatch(each.FeatureURL, each.FrameName, each.SearchFlags));
    }
    return ToSequence(found);
  }

  Reference<XDispatchProvider> SAL_CALL getSlaveDispatchProvider() override { return next_; }
  void SAL_CALL setSlaveDispatchProvider(const Reference<XDispatchProvider>& next) override {
    next_ = next;
  }
  Reference<XDispatchProvider> SAL_CALL getMasterDispatchProvider() override { return previous_; }
  void SAL_CALL setMasterDispatchProvider(const Reference<XDispatchProvider>& previous) override {
    previous_ = previous;
  }

 private:
  BoardPointer board_;
  Reference<XDispatchProvider> next_;
  Reference<XDispatchProvider> previous_;
};

}  // namespace

void InterceptMenus(const Reference<css::frame::XController>& controller,
                    const BoardPointer& board) {
  As<css::ui::XContextMenuInterception>(controller)
      ->registerContextMenuInterceptor(new MenuInterceptor(board));
  As<css::frame::XDispatchProviderInterception>(controller->getFrame())
      ->registerDispatchProviderInterceptor(new DispatchInterceptor(board));
}

}  // namespace rangewerks::hosts::libreoffice
