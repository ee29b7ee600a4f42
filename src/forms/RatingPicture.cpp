#include "forms/RatingPicture.h"

#include "forms/Painter.h"
#include "forms/WideText.h"
#include "forms/portable/RatingRing.h"

namespace sonaro {
namespace {

constexpr int kFigureTop = 12;  // 96-dpi pixels from the top
constexpr int kFigureHeight = 22;
constexpr int kCaptionTop = 44;
constexpr int kCaptionHeight = 16;
constexpr int kCaptionOverhang = 2;  // the name may be a little wider than the ring

}  // namespace

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

void RatingPicture::PaintOn(HDC dc, const RECT& box) const {
  const Painter& look = Look();
  const FaceplateColors& colors = look.Colors();
  const int left = (static_cast<int>(box.right) - look.Px(kRingWidth)) / 2;
  const int lit = LitTicks(halves_);
  DrawCoverage(dc, left, 0, RenderRing(0, lit, look.Dpi()), colors.signal);
  DrawCoverage(dc, left, 0, RenderRing(lit, kRingTicks, look.Dpi()), colors.tickOff);
  look.Text(dc, {0, look.Px(kFigureTop), box.right, look.Px(kFigureTop + kFigureHeight)}, figure_,
            Type::MessageStrong, halves_ > 0 ? colors.glassText : colors.glassMuted, DT_CENTER | DT_NOPREFIX);
  look.Text(dc, {0, look.Px(kCaptionTop), box.right, look.Px(kCaptionTop + kCaptionHeight)}, caption_,
            Type::Small, colors.glassMuted, DT_CENTER | DT_NOPREFIX);
}

}  // namespace sonaro
