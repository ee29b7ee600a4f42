#include "forms/controls/RatingPicture.h"

#include "forms/WideText.h"
#include "forms/paint/Icons.h"
#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

constexpr int kFigureTop = 12;  // 96-dpi pixels from the top
constexpr int kFigureHeight = 22;
constexpr int kCaptionTop = 44;
constexpr int kCaptionHeight = 16;
constexpr int kCaptionOverhang = 2;  // the name may be a little wider than the ring

}  // namespace

// Until there is a rating, the name alone is what a screen reader says.
RatingPicture::RatingPicture(HWND form, int id, FormServices& services, std::string_view caption)
    : PaintedControl(form, id, services,
                     {.windowClass = L"STATIC", .style = SS_NOPREFIX, .overhang = kCaptionOverhang},
                     Widen(caption).c_str()),
      caption_(Widen(caption)) {}

void RatingPicture::SetRating(int halves, std::string_view figure, std::string_view spoken) {
  halves_ = halves;
  figure_ = Widen(figure);
  SetWindowTextW(Window(), Widen(spoken).c_str());
  Repaint();
}

// Lit and dark ticks are two pictures of one ring, each smoothed by itself; they never touch.
void RatingPicture::PaintOn(HDC dc, const RECT& box) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int left = (static_cast<int>(box.right) - theme.Px(kRingWidth)) / 2;
  const int lit = LitTicks(halves_);
  DrawCoverage(dc, left, 0, RenderRing(0, lit, theme.Dpi()), colors.signal);
  DrawCoverage(dc, left, 0, RenderRing(lit, kRingTicks, theme.Dpi()), colors.tickOff);
  theme.Text(dc, {0, theme.Px(kFigureTop), box.right, theme.Px(kFigureTop + kFigureHeight)}, figure_,
             TextStyle::MessageStrong, halves_ > 0 ? colors.glassText : colors.glassMuted,
             DT_CENTER | DT_NOPREFIX);
  theme.Text(dc, {0, theme.Px(kCaptionTop), box.right, theme.Px(kCaptionTop + kCaptionHeight)}, caption_,
             TextStyle::Small, colors.glassMuted, DT_CENTER | DT_NOPREFIX);
}

}  // namespace sonaro
