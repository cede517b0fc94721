#include "hosts/libreoffice/connection.h"

#include <algorithm>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <cstdlib>
#include <thread>

#include "cppuhelper/bootstrap.hxx"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using std::chrono::milliseconds;

/// This process's own component context, which knows how to open pipes. It is made once and kept:
/// UNO's tables of types and bridges live as long as the process.
const Reference<css::uno::XComponentContext>& LocalContext() {
  static const auto* const context =
      new Reference<css::uno::XComponentContext>(cppu::defaultBootstrap_InitialComponentContext());
  return *context;
}

Reference<css::uno::XComponentContext> TryConnect(const OfficeProcess& process) {
  const auto resolver = css::bridge::UnoUrlResolver::create(LocalContext());
  const std::string url =
      "uno:pipe,name=" + process.PipeName() + ";urp;StarOffice.ComponentContext";
  try {
    return As<css::uno::XComponentContext>(resolver->resolve(ToUno(url)));
  } catch (const css::connection::NoConnectException&) {
    return {};
  }
}

}  // namespace

void PrepareUno(const std::filesystem::path& programFolder) {
  const std::string bootstrap =
      "vnd.sun.star.pathname:" + (programFolder / "fundamentalrc").string();
  setenv("URE_BOOTSTRAP", bootstrap.c_str(), 1);
}

Reference<css::uno::XComponentContext> Connect(OfficeProcess& process) {
  constexpr milliseconds kLimit{60000};
  constexpr milliseconds kLongestPause{250};
  milliseconds pause{10};
  for (milliseconds waited{0}; waited < kLimit; waited += pause) {
    if (auto context = TryConnect(process); context.is()) return context;
    if (!process.IsRunning()) {
      Fail("LibreOffice ended while starting. It said: " + process.Output());
    }
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 3 / 2, kLongestPause);
  }
  Fail("LibreOffice didn't answer within a minute of its start. It said: " + process.Output());
}

}  // namespace rangewerks::hosts::libreoffice
