// What a container learns of a control that isn't active, and keeps of it.
#include <gmock/gmock.h>
#include <ole2.h>

#include <map>
#include <string>

#include "com/bridge/text.h"
#include "control/control_under_test.h"
#include "forms/picture.h"

namespace rangewerks::tests {
namespace {

using com::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using AControl = ControlTest;

TEST_F(AControl, IsOneObjectWhicheverInterfaceItIsAskedFor) {
  const auto identity = panel.TryQuery<IUnknown>(IID_IUnknown);
  for (const IID& iid :
       {IID_IOleObject, IID_IOleInPlaceObject, IID_IOleWindow, IID_IOleInPlaceActiveObject,
        IID_IOleControl, IID_IViewObject, IID_IViewObject2, IID_IPersist, IID_IPersistStreamInit,
        IID_IPersistPropertyBag, IID_IProvideClassInfo, IID_IDispatch}) {
    const auto face = panel.TryQuery<IUnknown>(iid);
    ASSERT_TRUE(face);
    EXPECT_EQ(face.TryQuery<IUnknown>(IID_IUnknown).Get(), identity.Get());
  }
}

TEST_F(AControl, LacksWhatItCannotDo) {
  EXPECT_FALSE(panel.TryQuery<IDataObject>());
  EXPECT_FALSE(panel.TryQuery<ISpecifyPropertyPages>());
}

TEST_F(AControl, TellsItsClassItsNameAndHowToTreatIt) {
  const auto object = Ask<IOleObject>();
  CLSID id{};
  EXPECT_EQ(object->GetUserClassID(&id), S_OK);
  EXPECT_EQ(id, __uuidof(::ctlColourPallet));
  EXPECT_EQ(Ask<IPersistStreamInit>()->GetClassID(&id), S_OK);
  EXPECT_EQ(id, __uuidof(::ctlColourPallet));
  LPOLESTR name = nullptr;
  EXPECT_EQ(object->GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
  EXPECT_EQ(com::FromWide(name), "Rangewerks colour panel");
  CoTaskMemFree(name);
  DWORD status = 0;
  EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_EQ(status, 131473U);
}

TEST_F(AControl, IsAsLargeAsThePanelAtFirst) {
  SIZEL size{};
  EXPECT_EQ(Ask<IOleObject>()->GetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_EQ(size.cx, 10398);  // 5895 by 1935 twips, in hundredths of a millimetre
  EXPECT_EQ(size.cy, 3413);
}

TEST_F(AControl, TakesTheSizeThatTheContainerSets) {
  SIZEL size{5292, 2646};  // 200 by 100 pixels
  EXPECT_EQ(Ask<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  SIZEL now{};
  EXPECT_EQ(Ask<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &now), S_OK);
  EXPECT_EQ(now.cx, 5292);
  EXPECT_EQ(now.cy, 2646);
  EXPECT_EQ(Ask<IOleObject>()->SetExtent(DVASPECT_ICON, &size), DV_E_DVASPECT);
}

TEST_F(AControl, DrawsItselfWithoutBeingActive) {
  panel->put_ColumnColour(0x0000FF);
  panel->put_HeadingColour(0x00FF00);
  panel->LoadColours();
  const Look look = LookOf(*panel.Get(), 393, 129);
  EXPECT_EQ(look.At(kColumnSwatch.x, kColumnSwatch.y), 0xFF0000U);
  EXPECT_EQ(look.At(kHeadingSwatch.x, kHeadingSwatch.y), 0x00FF00U);
}

TEST_F(AControl, LooksTheSameActiveAndNot) {
  panel->put_ColumnColour(0x0000FF);
  panel->LoadColours();
  const Look inactive = LookOf(*panel.Get(), 393, 129);
  Activate(OLEIVERB_SHOW);
  EXPECT_EQ(LookOf(*panel.Get(), 393, 129).pixels, inactive.pixels);
}

TEST_F(AControl, IsStretchedToThePlaceThatItIsDrawnIn) {
  panel->put_ColumnColour(0x0000FF);
  panel->LoadColours();
  const Look look = LookOf(*panel.Get(), 786, 258);
  EXPECT_EQ(look.At(2 * kColumnSwatch.x, 2 * kColumnSwatch.y), 0xFF0000U);
}

TEST_F(AControl, ShowsTheTextOfItsFrame) {
  panel->NameOfTheFrame(com::Bstr("").Get());
  const Look without = LookOf(*panel.Get(), 393, 129);
  panel->NameOfTheFrame(com::Bstr("Range Color").Get());
  EXPECT_NE(LookOf(*panel.Get(), 393, 129).pixels, without.pixels);
}

TEST_F(AControl, ShowsNothingBelowTheLowerEdgeOfItsFrame) {
  panel->put_HeadingColour(0x00FF00);
  panel->LoadColours();
  panel->Framelength(800);
  EXPECT_NE(LookOf(*panel.Get(), 393, 129).At(kHeadingSwatch.x, kHeadingSwatch.y), 0x00FF00U);
}

TEST_F(AControl, DrawsItsContentOnly) {
  const RECTL place{0, 0, 10, 10};
  EXPECT_EQ(Ask<IViewObject2>()->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, nullptr, &place,
                                      nullptr, nullptr, 0),
            DV_E_DVASPECT);
}

Pointer<IStream> NewStream() {
  Pointer<IStream> stream;
  EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive()), S_OK);
  return stream;
}

void Rewind(IStream& stream) { stream.Seek({}, STREAM_SEEK_SET, nullptr); }

TEST_F(AControl, KeepsSizeAndColoursInAStream) {
  SIZEL size{5292, 2646};
  Ask<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size);
  panel->put_ColumnColour(0x0000FF);
  panel->put_HeadingColour(0x00FF00);
  const auto stream = NewStream();
  ASSERT_EQ(Ask<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  Rewind(*stream.Get());

  const auto another = New();
  ASSERT_EQ(another.TryQuery<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  LONG colour = 0;
  another->get_ColumnColour(&colour);
  EXPECT_EQ(colour, 0x0000FF);
  another->get_HeadingColour(&colour);
  EXPECT_EQ(colour, 0x00FF00);
  SIZEL now{};
  another.TryQuery<IOleObject>()->GetExtent(DVASPECT_CONTENT, &now);
  EXPECT_EQ(now.cx, 5292);
  EXPECT_EQ(now.cy, 2646);
}

TEST_F(AControl, ShowsTheColoursThatItHasLoaded) {
  panel->put_ColumnColour(0x0000FF);
  const auto stream = NewStream();
  Ask<IPersistStreamInit>()->Save(stream.Get(), TRUE);
  Rewind(*stream.Get());
  const auto another = New();
  another.TryQuery<IPersistStreamInit>()->Load(stream.Get());
  EXPECT_EQ(LookOf(*another.Get(), 393, 129).At(kColumnSwatch.x, kColumnSwatch.y), 0xFF0000U);
}

TEST_F(AControl, LoadsNothingOfAStreamThatEndsTooEarlyOrIsOfALaterVersion) {
  panel->put_ColumnColour(0x112233);
  const auto stream = NewStream();
  const std::int32_t two[] = {1, 5292};
  stream->Write(two, sizeof(two), nullptr);
  Rewind(*stream.Get());
  EXPECT_EQ(Ask<IPersistStreamInit>()->Load(stream.Get()), STG_E_READFAULT);
  const std::int32_t later[] = {2, 1, 1, 1, 1};
  Rewind(*stream.Get());
  stream->Write(later, sizeof(later), nullptr);
  Rewind(*stream.Get());
  EXPECT_EQ(Ask<IPersistStreamInit>()->Load(stream.Get()), STG_E_OLDDLL);
  LONG colour = 0;
  panel->get_ColumnColour(&colour);
  EXPECT_EQ(colour, 0x112233);
}

TEST_F(AControl, TellsHowLongAStreamGets) {
  ULARGE_INTEGER size{};
  EXPECT_EQ(Ask<IPersistStreamInit>()->GetSizeMax(&size), S_OK);
  const auto stream = NewStream();
  Ask<IPersistStreamInit>()->Save(stream.Get(), TRUE);
  STATSTG state{};
  stream->Stat(&state, STATFLAG_NONAME);
  EXPECT_EQ(size.QuadPart, state.cbSize.QuadPart);
}

TEST_F(AControl, IsDirtyFromAChangeToTheNextSaving) {
  const auto stored = Ask<IPersistStreamInit>();
  EXPECT_EQ(stored->InitNew(), S_OK);
  EXPECT_EQ(stored->IsDirty(), S_FALSE);
  panel->put_HeadingColour(1);
  EXPECT_EQ(stored->IsDirty(), S_OK);
  stored->Save(NewStream().Get(), FALSE);
  EXPECT_EQ(stored->IsDirty(), S_OK);
  stored->Save(NewStream().Get(), TRUE);
  EXPECT_EQ(stored->IsDirty(), S_FALSE);
}

TEST_F(AControl, AsksToBeSavedWhenItIsClosedDirty) {
  Insert();
  const auto object = Ask<IOleObject>();
  object->Close(OLECLOSE_SAVEIFDIRTY);
  EXPECT_THAT(container.TakeCalls(), IsEmpty());
  panel->put_HeadingColour(1);
  object->Close(OLECLOSE_NOSAVE);
  EXPECT_THAT(container.TakeCalls(), IsEmpty());
  object->Close(OLECLOSE_SAVEIFDIRTY);
  EXPECT_THAT(container.TakeCalls(), ElementsAre("save"));
}

/// Named values.
class Bag final : public IPropertyBag {
 public:
  std::map<std::string, std::string> values;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** /*object*/) noexcept override {
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 1; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value,
                                 IErrorLog* /*log*/) noexcept override {
    const auto found = values.find(com::FromWide(name));
    if (found == values.end()) return E_INVALIDARG;
    V_VT(value) = VT_BSTR;  // as a form that is kept as text has it
    V_BSTR(value) = com::ToBstr(found->second);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) noexcept override {
    EXPECT_EQ(V_VT(value), VT_I4);
    values[com::FromWide(name)] = std::to_string(V_I4(value));
    return S_OK;
  }
};

TEST_F(AControl, KeepsSizeAndColoursInABagOfNamedValues) {
  panel->put_ColumnColour(255);
  panel->put_HeadingColour(65280);
  Bag bag;
  ASSERT_EQ(Ask<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE), S_OK);
  EXPECT_THAT(bag.values, ElementsAre(Pair("ColumnColour", "255"), Pair("HeadingColour", "65280"),
                                      Pair("_ExtentX", "10398"), Pair("_ExtentY", "3413")));
  const auto another = New();
  ASSERT_EQ(another.TryQuery<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  LONG colour = 0;
  another->get_ColumnColour(&colour);
  EXPECT_EQ(colour, 255);
  another->get_HeadingColour(&colour);
  EXPECT_EQ(colour, 65280);
}

TEST_F(AControl, KeepsWhatABagLacks) {
  panel->put_ColumnColour(255);
  Bag bag;
  bag.values = {{"HeadingColour", "7"}, {"_ExtentX", "wide"}};
  ASSERT_EQ(Ask<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  LONG colour = 0;
  panel->get_ColumnColour(&colour);
  EXPECT_EQ(colour, 255);
  panel->get_HeadingColour(&colour);
  EXPECT_EQ(colour, 7);
  SIZEL size{};
  Ask<IOleObject>()->GetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(size.cx, 10398);
}

/// Hears of changes and of the end.
class Listener final : public IAdviseSink {
 public:
  int changes = 0;
  int closings = 0;
  ULONG references = 0;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    const bool known = iid == IID_IUnknown || iid == IID_IAdviseSink;
    *object = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    ++references;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return --references; }
  void STDMETHODCALLTYPE OnDataChange(FORMATETC* /*f*/, STGMEDIUM* /*m*/) noexcept override {}
  void STDMETHODCALLTYPE OnViewChange(DWORD aspect, LONG /*index*/) noexcept override {
    EXPECT_EQ(aspect, DVASPECT_CONTENT);
    ++changes;
  }
  void STDMETHODCALLTYPE OnRename(IMoniker* /*moniker*/) noexcept override {}
  void STDMETHODCALLTYPE OnSave() noexcept override {}
  void STDMETHODCALLTYPE OnClose() noexcept override { ++closings; }
};

TEST_F(AControl, TellsThatItLooksDifferent) {
  Listener listener;
  EXPECT_EQ(Ask<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, &listener), S_OK);
  SIZEL size{5292, 2646};
  Ask<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(listener.changes, 1);
  Bag bag;
  Ask<IPersistPropertyBag>()->Load(&bag, nullptr);
  EXPECT_EQ(listener.changes, 2);
  Ask<IViewObject2>()->SetAdvise(0, 0, nullptr);
  EXPECT_EQ(listener.references, 0U);
}

TEST_F(AControl, TellsAListenerOnceThatWantsToHearOnce) {
  Listener listener;
  Ask<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE | ADVF_PRIMEFIRST, &listener);
  SIZEL size{5292, 2646};
  Ask<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(listener.changes, 1);
  EXPECT_EQ(listener.references, 0U);
}

TEST_F(AControl, TellsThatItCloses) {
  Listener listener;
  DWORD connection = 0;
  const auto object = Ask<IOleObject>();
  EXPECT_EQ(object->Advise(&listener, &connection), S_OK);
  object->Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(listener.closings, 1);
  EXPECT_EQ(object->Unadvise(connection), S_OK);
  EXPECT_EQ(listener.references, 0U);
}

// Toolboxes take the colour of the lowest left pixel for transparent.
TEST_F(AControl, HasItsPictureForToolboxes) {
  HBITMAP bitmap = LoadBitmapW(GetModuleHandleW(L"Rangewerks.dll"), MAKEINTRESOURCEW(101));
  ASSERT_NE(bitmap, nullptr);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(info.bmiHeader), 16, -16, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::vector<std::uint32_t> pixels(16 * 16);
  HDC device = CreateCompatibleDC(nullptr);
  EXPECT_EQ(GetDIBits(device, bitmap, 0, 16, pixels.data(), &info, DIB_RGB_COLORS), 16);
  DeleteDC(device);
  DeleteObject(bitmap);
  const forms::Bitmap picture = forms::Draw(forms::Picture::Palette, 16);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const std::uint32_t opacity = picture.pixels[i] >> 24;
    if (opacity == 255) {
      EXPECT_EQ(pixels[i] & 0xFFFFFFU, picture.pixels[i] & 0xFFFFFFU) << i;
    } else if (opacity == 0) {
      EXPECT_EQ(pixels[i] & 0xFFFFFFU, 0xC0C0C0U) << i;
    }
  }
}

TEST_F(AControl, LetsTheModuleGoWithItsLastReference) {
  LookOf(*panel.Get(), 393, 129);  // with a window, but in no container
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  EXPECT_EQ(panel.Detach()->Release(), 0U);
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace rangewerks::tests
