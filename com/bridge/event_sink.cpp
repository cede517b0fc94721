#include "com/bridge/event_sink.h"

#include <ocidl.h>

#include <string>
#include <unordered_map>
#include <utility>

#include "automation/error.h"
#include "com/bridge/counted.h"
#include "com/bridge/failures.h"
#include "com/bridge/incoming_arguments.h"
#include "com/bridge/type_information.h"

namespace rangewerks::com {
namespace {

using automation::Connection;
using automation::Error;
using automation::ErrorNumber;
using automation::EventHandler;
using automation::Member;

class EventSink final : public Counted<IDispatch> {
 public:
  EventSink(Pointer<ITypeInfo> source, EventHandler handler)
      : source_(std::move(source)),
        interface_(IdentifierOf(*source_.Get())),
        handler_(std::move(handler)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                        ITypeInfo** information) noexcept override {
    if (information != nullptr) *information = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count,
                                          LCID /*locale*/, DISPID* ids) noexcept override {
    return source_->GetIDsOfNames(names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/,
                                   DISPPARAMS* parameters, VARIANT* /*result*/,
                                   EXCEPINFO* exception, UINT* /*bad*/) noexcept override {
    if (parameters == nullptr) return E_POINTER;
    try {
      const IncomingArguments arguments(
          *parameters, [](DISPID) -> Member { throw Error(ErrorNumber::NamedArgumentNotFound); });
      const auto handler = handler_;  // the handler may disconnect, and thereby end this sink
      if (const auto event = EventOf(id); handler && !event.empty()) {
        handler(Member(event), arguments.positional);
        arguments.WriteBack();
      }
      return S_OK;
    } catch (...) {
      return DescribeCurrentException(exception);
    }
  }

  /// No event reaches the handler any more, whoever still holds the sink.
  void Silence() { handler_ = {}; }

 private:
  bool AnswersTo(REFIID iid) const noexcept override { return IsEqualIID(iid, interface_) != 0; }

  const std::string& EventOf(DISPID id) {
    const auto [entry, added] = names_.try_emplace(id);
    if (added) entry->second = NameOf(*source_.Get(), id);
    return entry->second;
  }

  Pointer<ITypeInfo> source_;
  GUID interface_;
  EventHandler handler_;
  std::unordered_map<DISPID, std::string> names_;
};

}  // namespace

Connection ConnectSink(const Pointer<IUnknown>& object, const Pointer<IDispatch>& dispatch,
                       EventHandler handler) {
  const auto container = object.TryQuery<IConnectionPointContainer>();
  const auto type = container ? ClassOf(object.Get(), dispatch.Get()) : Pointer<ITypeInfo>();
  auto source = type ? DefaultInterfaceOf(*type.Get(), IMPLTYPEFLAG_FSOURCE) : Pointer<ITypeInfo>();
  Pointer<IConnectionPoint> point;
  if (!source ||
      FAILED(container->FindConnectionPoint(IdentifierOf(*source.Get()), point.Receive()))) {
    throw Error(ErrorNumber::NoSuchEvents);
  }
  auto sink = Pointer<EventSink>::Adopt(new EventSink(std::move(source), std::move(handler)));
  DWORD cookie = 0;
  Require(point->Advise(sink.Get(), &cookie));
  return Connection([point, sink, cookie] {
    sink->Silence();
    point->Unadvise(cookie);
  });
}

}  // namespace rangewerks::com
