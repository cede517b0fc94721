// A control's life inside its container's window.
#include <gmock/gmock.h>

#include <string>

#include "control/control_under_test.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using com::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;

RECT PlaceIn(HWND container, HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

testing::AssertionResult IsAt(const RECT& place, const RECT& wanted) {
  if (EqualRect(&place, &wanted) != FALSE) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << place.left << ", " << place.top << ", " << place.right << ", " << place.bottom;
}

using AnActiveControl = ControlTest;

TEST_F(AnActiveControl, StandsAtItsPlaceInTheContainersWindow) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  EXPECT_THAT(container.TakeCalls(), ElementsAre("may it?", "active", "show"));
  HWND window = ControlWindow();
  EXPECT_EQ(GetParent(window), container.window);
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_TRUE(IsAt(PlaceIn(container.window, window), container.place));
}

TEST_F(AnActiveControl, WithTheUserInterfaceHasTheKeyboardAndTheFrame) {
  Activate(OLEIVERB_UIACTIVATE);
  EXPECT_THAT(container.TakeCalls(), ElementsAre("may it?", "active", "show", "user interface",
                                                 "active object", "no bars"));
  EXPECT_TRUE(IsChild(ControlWindow(), GetFocus()));
  HWND window = nullptr;
  EXPECT_EQ(container.frame.active->GetWindow(&window), S_OK);
  EXPECT_EQ(window, ControlWindow());
}

TEST_F(AnActiveControl, IsActivatedOnce) {
  Activate(OLEIVERB_SHOW);
  container.TakeCalls();
  Activate(OLEIVERB_INPLACEACTIVATE);
  EXPECT_THAT(container.TakeCalls(), IsEmpty());
}

TEST_F(AnActiveControl, TakesThePlaceThatTheContainerGivesIt) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  const RECT place{5, 6, 305, 106};
  EXPECT_EQ(Ask<IOleInPlaceObject>()->SetObjectRects(&place, &place), S_OK);
  EXPECT_TRUE(IsAt(PlaceIn(container.window, ControlWindow()), place));
}

TEST_F(AnActiveControl, IsSeenWithinTheClipOnly) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  const RECT clip{0, 0, 220, 100};
  EXPECT_EQ(Ask<IOleInPlaceObject>()->SetObjectRects(&container.place, &clip), S_OK);
  RECT seen{};
  EXPECT_EQ(GetWindowRgnBox(ControlWindow(), &seen), SIMPLEREGION);
  EXPECT_TRUE(IsAt(seen, {0, 0, 200, 70}));

  EXPECT_EQ(Ask<IOleInPlaceObject>()->SetObjectRects(&container.place, &container.place), S_OK);
  EXPECT_EQ(GetWindowRgnBox(ControlWindow(), &seen), ERROR);  // all of it
}

TEST_F(AnActiveControl, LetsThePersonChooseAColourByAClick) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  container.TakeCalls();
  const auto buttons = Fields(L"Button");
  ASSERT_EQ(buttons.size(), 2U);
  {
    const Person person([](HWND dialog) {
      Write(dialog, 706, L"16");  // red, green and blue
      Write(dialog, 707, L"32");
      Write(dialog, 708, L"48");
      Press(dialog, IDOK);
    });
    Click(buttons[0]);
    LONG colour = 0;
    EXPECT_TRUE(container.Serve([&] {
      panel->get_ColumnColour(&colour);
      return colour != 0;
    }));
    EXPECT_EQ(colour, 0x302010);
  }
  EXPECT_THAT(container.TakeCalls(), ElementsAre("user interface", "active object", "no bars"));
  EXPECT_EQ(LookOf(*panel.Get(), 393, 129).At(kColumnSwatch.x, kColumnSwatch.y), 0x102030U);
}

TEST_F(AnActiveControl, PassesTabFromFieldToFieldAndThenToTheContainer) {
  container.takesTabs = true;
  Activate(OLEIVERB_UIACTIVATE);
  const auto fields = Fields(L"Edit");
  const auto buttons = Fields(L"Button");
  ASSERT_EQ(fields.size(), 2U);
  container.TakeCalls();
  for (HWND next : {buttons[0], fields[1], buttons[1]}) {
    TypeTab(false);
    EXPECT_TRUE(container.Serve([&] { return GetFocus() == next; }));
  }
  EXPECT_THAT(container.TakeCalls(), IsEmpty());
  TypeTab(false);
  EXPECT_TRUE(container.Serve([&] { return !container.calls.empty(); }));
  EXPECT_THAT(container.TakeCalls(), ElementsAre("key 9 with 0"));
  EXPECT_EQ(GetFocus(), buttons[1]);
}

TEST_F(AnActiveControl, GoesRoundWhereTheContainerDoesNotTakeTheTab) {
  Activate(OLEIVERB_UIACTIVATE);
  const auto fields = Fields(L"Edit");
  const auto buttons = Fields(L"Button");
  ASSERT_EQ(GetFocus(), fields.at(0));
  TypeTab(true);
  EXPECT_TRUE(container.Serve([&] { return GetFocus() == buttons.at(1); }));
}

TEST_F(AnActiveControl, LeavesEscapeAndEnterToTheContainerButOnAButton) {
  Activate(OLEIVERB_UIACTIVATE);
  MSG key{GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
  EXPECT_EQ(container.frame.active->TranslateAccelerator(&key), S_FALSE);
  key.wParam = VK_RETURN;
  EXPECT_EQ(container.frame.active->TranslateAccelerator(&key), S_FALSE);
  key.hwnd = Fields(L"Button").at(0);
  const Person person([](HWND dialog) { Press(dialog, IDCANCEL); });
  EXPECT_EQ(container.frame.active->TranslateAccelerator(&key), S_OK);
}

TEST_F(AnActiveControl, GivesTheUserInterfaceBackAndStaysActive) {
  Activate(OLEIVERB_UIACTIVATE);
  container.TakeCalls();
  EXPECT_EQ(Ask<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_THAT(container.TakeCalls(), ElementsAre("no active object", "no user interface"));
  EXPECT_TRUE(IsWindowVisible(ControlWindow()));
}

TEST_F(AnActiveControl, LeavesTheContainersWindowWhenItIsDeactivated) {
  Activate(OLEIVERB_UIACTIVATE);
  HWND window = ControlWindow();
  container.TakeCalls();
  EXPECT_EQ(Ask<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  EXPECT_THAT(container.TakeCalls(),
              ElementsAre("no active object", "no user interface", "inactive"));
  EXPECT_FALSE(IsChild(container.window, window));
  EXPECT_FALSE(IsWindowVisible(window));
  HWND none = window;
  EXPECT_EQ(Ask<IOleInPlaceObject>()->GetWindow(&none), E_FAIL);
  EXPECT_EQ(none, nullptr);
}

TEST_F(AnActiveControl, IsDeactivatedOnceByAContainerThatDoesItWithTheUserInterface) {
  Activate(OLEIVERB_UIACTIVATE);
  container.TakeCalls();
  const auto object = Ask<IOleInPlaceObject>();
  container.deactivated = object.Get();
  EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
  EXPECT_THAT(container.TakeCalls(),
              ElementsAre("no active object", "no user interface", "inactive"));
}

TEST_F(AnActiveControl, KeepsItsColoursWhenItIsDeactivatedAndActivatedAnew) {
  Activate(OLEIVERB_SHOW);
  panel->put_ColumnColour(0x112233);
  panel->LoadColours();
  EXPECT_EQ(Ask<IOleObject>()->DoVerb(OLEIVERB_HIDE, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
  Activate(OLEIVERB_SHOW);
  LONG colour = 0;
  panel->get_ColumnColour(&colour);
  EXPECT_EQ(colour, 0x112233);
  EXPECT_EQ(LookOf(*panel.Get(), 393, 129).At(kColumnSwatch.x, kColumnSwatch.y), 0x332211U);
}

TEST_F(AnActiveControl, IsNotMadeWhereTheContainerRefusesIt) {
  container.allows = false;
  Insert();
  EXPECT_EQ(Ask<IOleObject>()->DoVerb(OLEIVERB_SHOW, nullptr, &container.site, 0, container.window,
                                      &container.place),
            OLE_E_NOT_INPLACEACTIVE);
  EXPECT_THAT(container.TakeCalls(), ElementsAre("may it?"));
}

TEST_F(AnActiveControl, IsNotMadeWhereTheContainerFailsAndHoldsNothingOfIt) {
  container.fails = true;
  Insert();
  EXPECT_EQ(Ask<IOleObject>()->DoVerb(OLEIVERB_SHOW, nullptr, &container.site, 0, container.window,
                                      &container.place),
            E_FAIL);
  EXPECT_EQ(container.frame.references, 0U);
  EXPECT_EQ(container.site.references, 1U);  // as its site
}

TEST_F(AnActiveControl, IsNotMadeWithoutASite) {
  EXPECT_EQ(Ask<IOleObject>()->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, container.window,
                                      &container.place),
            OLE_E_NOT_INPLACEACTIVE);
}

TEST_F(AnActiveControl, KnowsNoVerbsOfItsOwn) {
  const auto object = Ask<IOleObject>();
  EXPECT_EQ(object->DoVerb(1, nullptr, nullptr, 0, nullptr, nullptr), OLEOBJ_S_INVALIDVERB);
  EXPECT_EQ(object->DoVerb(OLEIVERB_OPEN, nullptr, nullptr, 0, nullptr, nullptr), E_NOTIMPL);
  IEnumOLEVERB* verbs = nullptr;
  EXPECT_EQ(object->EnumVerbs(&verbs), OLEOBJ_E_NOVERBS);
}

TEST_F(AnActiveControl, SurvivesThatTheContainersWindowGoesFirst) {
  Activate(OLEIVERB_UIACTIVATE);
  DestroyWindow(container.window);
  HWND window = nullptr;
  EXPECT_EQ(Ask<IOleInPlaceObject>()->GetWindow(&window), E_FAIL);
  LONG colour = -1;
  EXPECT_EQ(panel->get_ColumnColour(&colour), S_OK);
  EXPECT_EQ(panel->LoadColours(), S_OK);
  container.frame.active = {};
}

TEST_F(AnActiveControl, GoesWithItsWindowWhenItIsReleasedWhileActive) {
  Activate(OLEIVERB_SHOW);
  HWND window = ControlWindow();
  EXPECT_EQ(panel.Detach()->Release(), 0U);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(container.site.references, 0U);
  EXPECT_EQ(container.frame.references, 0U);
}

TEST_F(AnActiveControl, ClosedAndReleasedLeavesNothingBehind) {
  Activate(OLEIVERB_UIACTIVATE);
  HWND window = ControlWindow();
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  const auto object = Ask<IOleObject>();
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
  EXPECT_EQ(container.site.references, 0U);
  EXPECT_EQ(container.frame.references, 0U);
  EXPECT_FALSE(IsWindowVisible(window));
  panel.Detach()->Release();
  EXPECT_EQ(Pointer(object).Detach()->Release(), 1U);  // the one that `object` holds
}

}  // namespace
}  // namespace rangewerks::tests
