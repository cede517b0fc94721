#include "platform/clsLayout.h"

#include <gtest/gtest.h>

#include <string>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "forms/simple_controls.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using desktops::HeadlessDesktop;
using forms::Place;

/// A form that is 6240 wide and 4585 high at design, borders included.
class frmResizable final : public forms::Form {
 public:
  frmResizable(forms::Toolkit& toolkit, const std::string& tag)
      : Form(toolkit, "frmResizable",
             {.innerWidth = 6000, .innerHeight = 4000, .border = forms::Border::Sizable}),
        txtTagged{*this, "txtTagged", {.place = {600, 400, 3000, 2000}, .tag = tag}} {}

  forms::TextBox txtTagged;
};

class frmWithFrame final : public forms::Form {
 public:
  explicit frmWithFrame(forms::Toolkit& toolkit)
      : Form(toolkit, "frmWithFrame", {.innerWidth = 6000, .innerHeight = 4000}) {}

  forms::Label lblNone{*this, "lblNone", {.place = {0, 0, 100, 100}, .tag = "none"}};
  forms::Frame fraAll{
      *this, "fraAll", {.place = {1000, 1000, 2000, 1500}, .tag = "fixRight fixTop"}};
  forms::TextBox txtInside{fraAll, "txtInside", {.place = {100, 200, 500, 300}, .tag = "varFull"}};
};

/// Where a control with that tag stands after its form has been resized.
Place Resized(const std::string& tag, double width, double height) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, tag);
  clsLayout layout;
  layout.SetLayout(form);
  form.Move({0, 0, width, height});
  layout.RedrawLayout();
  return form.txtTagged.Properties().place;
}

/// As wide and high as at design, and 1000 wider and 500 higher.
constexpr double kWidth = 6240;
constexpr double kHeight = 4585;
Place Grown(const std::string& tag) { return Resized(tag, kWidth + 1000, kHeight + 500); }

TEST(ClsLayout, ReadsEachCapitalLetterOfATag) {
  EXPECT_EQ(clsLayout::FlagsOf("L"), 1);
  EXPECT_EQ(clsLayout::FlagsOf("R"), 2);
  EXPECT_EQ(clsLayout::FlagsOf("T"), 4);
  EXPECT_EQ(clsLayout::FlagsOf("B"), 8);
  EXPECT_EQ(clsLayout::FlagsOf("V"), 12);
  EXPECT_EQ(clsLayout::FlagsOf("H"), 3);
  EXPECT_EQ(clsLayout::FlagsOf("F"), 15);
  EXPECT_EQ(clsLayout::FlagsOf("X"), 16);
  EXPECT_EQ(clsLayout::FlagsOf("Y"), 32);
  EXPECT_EQ(clsLayout::FlagsOf("W"), 64);
  EXPECT_EQ(clsLayout::FlagsOf("D"), 128);
  EXPECT_EQ(clsLayout::FlagsOf("LTWD"), 1 + 4 + 64 + 128);
  EXPECT_EQ(clsLayout::FlagsOf("LL"), 1);
}

TEST(ClsLayout, ReadsATagThatIsAWordByItsCapitals) {
  EXPECT_EQ(clsLayout::FlagsOf("varFull"), 15);
  EXPECT_EQ(clsLayout::FlagsOf("fixRight fixTop"), 6);
}

TEST(ClsLayout, ReadsNfAs15AndFnAs0) {
  EXPECT_EQ(clsLayout::FlagsOf("NF"), 15);
  EXPECT_EQ(clsLayout::FlagsOf("FN"), 0);
}

TEST(ClsLayout, ReadsNothingFromSmallLettersDigitsAndOtherCapitals) {
  EXPECT_EQ(clsLayout::FlagsOf("lrtbvhfxywd"), 0);
  EXPECT_EQ(clsLayout::FlagsOf("A1 C?"), 0);
}

TEST(ClsLayout, LeavesOutAControlWhoseTagIsEmptyOrHasNoCapitals) {
  HeadlessDesktop desktop;
  clsLayout layout;
  for (const char* tag : {"", "full", "FN"}) {
    frmResizable form(desktop, tag);
    layout.SetLayout(form);
    EXPECT_TRUE(layout.Controls().empty()) << tag;
  }
}

TEST(ClsLayout, NotesPlaceMarginsAndFlagsOfAControl) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "varFull");
  clsLayout layout;
  layout.SetLayout(form);
  ASSERT_EQ(layout.Controls().size(), 1U);
  const clsControl& noted = layout.Controls().front();
  EXPECT_EQ(noted.Left, 600);
  EXPECT_EQ(noted.RightMargin, 6240 - 600 - 3000);
  EXPECT_EQ(noted.Top, 400);
  EXPECT_EQ(noted.BottomMargin, 4585 - 400 - 2000);
  EXPECT_EQ(noted.Width, 3000);
  EXPECT_EQ(noted.Height, 2000);
  EXPECT_EQ(noted.Flags, 15);
  EXPECT_EQ(noted.Control, &form.txtTagged);
}

TEST(ClsLayout, TakesMarginsFromWhatAControlStandsOn) {
  HeadlessDesktop desktop;
  frmWithFrame form(desktop);
  clsLayout layout;
  layout.SetLayout(form);
  ASSERT_EQ(layout.Controls().size(), 2U);
  EXPECT_EQ(layout.Controls().front().Control, &form.fraAll);
  EXPECT_EQ(layout.Controls().back().Control, &form.txtInside);
  EXPECT_EQ(layout.Controls().back().RightMargin, 2000 - 100 - 500);
  EXPECT_EQ(layout.Controls().back().BottomMargin, 1500 - 200 - 300);
}

TEST(ClsLayout, NotesAFormAnewWithEachSetLayout) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "F");
  clsLayout layout;
  layout.SetLayout(form);
  form.txtTagged.let_Left(700);
  layout.SetLayout(form);
  ASSERT_EQ(layout.Controls().size(), 1U);
  EXPECT_EQ(layout.Controls().front().Left, 700);
}

TEST(ClsLayout, RoundsTheDesignToWholeTwips) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "F");
  form.txtTagged.Move({600.5, 401.5, 3000.4, 2000.6});
  clsLayout layout;
  layout.SetLayout(form);
  EXPECT_EQ(layout.Controls().front().Left, 600);
  EXPECT_EQ(layout.Controls().front().Top, 402);
  EXPECT_EQ(layout.Controls().front().Width, 3000);
  EXPECT_EQ(layout.Controls().front().Height, 2001);
}

TEST(ClsLayout, KeepsAFixedLeftAndTop) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "LT");
  clsLayout layout;
  layout.SetLayout(form);
  form.txtTagged.Move({1, 2, 30, 40});
  layout.RedrawLayout();
  EXPECT_EQ(form.txtTagged.Properties().place, (Place{600, 400, 30, 40}));
}

TEST(ClsLayout, MovesAControlWithTheRightAndTheLowerEdge) {
  EXPECT_EQ(Grown("RB"), (Place{1600, 900, 3000, 2000}));
}

TEST(ClsLayout, StretchesAControlThatIsFixedAtOppositeSides) {
  EXPECT_EQ(Grown("H"), (Place{600, 400, 4000, 2000}));
  EXPECT_EQ(Grown("V"), (Place{600, 400, 3000, 2500}));
  EXPECT_EQ(Grown("varFull"), (Place{600, 400, 4000, 2500}));
}

TEST(ClsLayout, ScalesLeftAndTopWithTheForm) {
  EXPECT_EQ(Resized("XY", kWidth * 2, kHeight * 3), (Place{1200, 1200, 3000, 2000}));
}

TEST(ClsLayout, ScalesWidthAndHeightWithTheForm) {
  EXPECT_EQ(Resized("WD", kWidth * 2, kHeight * 3), (Place{600, 400, 6000, 6000}));
}

TEST(ClsLayout, GivesScaledLengthsAsFractions) {
  const Place place = Resized("XW", kWidth + 1, kHeight);
  EXPECT_DOUBLE_EQ(place.left, 600.0 * 6241 / 6240);
  EXPECT_DOUBLE_EQ(place.width, 3000.0 * 6241 / 6240);
}

TEST(ClsLayout, RulesByAFixedLeftOverAProportionalOne) {
  EXPECT_EQ(Resized("LX", kWidth * 2, kHeight).left, 600);
}

TEST(ClsLayout, KeepsTheRightMarginOfAControlWhoseWidthScales) {
  const Place place = Resized("RW", kWidth * 2, kHeight);
  EXPECT_EQ(place.width, 6000);
  EXPECT_EQ(place.left, kWidth * 2 - (6240 - 600 - 3000) - 6000);
}

TEST(ClsLayout, StretchesRatherThanScalesBetweenTwoFixedSides) {
  EXPECT_EQ(Resized("LRW", kWidth * 2, kHeight).width, 3000 + kWidth);
}

TEST(ClsLayout, PlacesAControlFixedAtItsEndByItsPresentLength) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "RB");
  clsLayout layout;
  layout.SetLayout(form);
  form.txtTagged.Move({0, 0, 1000, 500});
  layout.RedrawLayout();
  EXPECT_EQ(form.txtTagged.Properties().place, (Place{2600, 1900, 1000, 500}));
}

TEST(ClsLayout, NeverGivesAControlANegativePosition) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "RB");
  clsLayout layout;
  layout.SetLayout(form);
  form.txtTagged.Move({0, 0, 9000, 9000});
  layout.RedrawLayout();
  EXPECT_EQ(form.txtTagged.get_Left(), 0);
  EXPECT_EQ(form.txtTagged.get_Top(), 0);
}

TEST(ClsLayout, KeepsTheDesignOfAFormThatIsMadeSmaller) {
  EXPECT_EQ(Resized("varFull", 1000, 1000), (Place{600, 400, 3000, 2000}));
  EXPECT_EQ(Resized("RB", 1000, 1000), (Place{600, 400, 3000, 2000}));
  EXPECT_EQ(Resized("XYWD", 1000, 1000), (Place{600, 400, 3000, 2000}));
}

TEST(ClsLayout, GivesNoWidthToAControlWhoseMarginsExceedTheForm) {
  HeadlessDesktop desktop;
  frmResizable form(desktop, "LR");
  form.txtTagged.Move({7000, 400, -3000, 2000});
  clsLayout layout;
  layout.SetLayout(form);
  form.txtTagged.let_Width(50);
  layout.RedrawLayout();
  EXPECT_EQ(form.txtTagged.get_Width(), 0);
}

TEST(ClsLayout, MeasuresWhatTheFirstControlStandsOnForAllControls) {
  HeadlessDesktop desktop;
  frmWithFrame form(desktop);
  clsLayout layout;
  layout.SetLayout(form);
  form.Move({0, 0, kWidth + 100, kHeight + 200});
  layout.RedrawLayout();
  EXPECT_EQ(form.fraAll.Properties().place, (Place{1100, 1000, 2000, 1500}));
  // Its frame hasn't grown, but the form has.
  EXPECT_EQ(form.txtInside.Properties().place,
            (Place{100, 200, kWidth + 100 - 100 - 1400, kHeight + 200 - 200 - 1000}));
}

TEST(ClsLayout, WithoutNotedControlsDoesNothing) {
  clsLayout layout;
  EXPECT_NO_THROW(layout.RedrawLayout());
  HeadlessDesktop desktop;
  frmResizable form(desktop, "");
  layout.SetLayout(form);
  form.Move({0, 0, 9000, 9000});
  layout.RedrawLayout();
  EXPECT_EQ(form.txtTagged.Properties().place, (Place{600, 400, 3000, 2000}));
}

TEST(ClsLayout, FailsWhenAProductDoesntFitInto32Bits) {
  for (const char* tag : {"X", "W"}) {
    EXPECT_TRUE(ErrorOf([&] {
                  (void)Resized(tag, 4000000, kHeight);
                }).Is(automation::ErrorNumber::Overflow));
  }
  for (const char* tag : {"Y", "D"}) {
    EXPECT_TRUE(ErrorOf([&] {
                  (void)Resized(tag, kWidth, 6000000);
                }).Is(automation::ErrorNumber::Overflow));
  }
  EXPECT_NO_THROW((void)Resized("F", 4000000, 6000000));
}

}  // namespace
}  // namespace rangewerks::tests
