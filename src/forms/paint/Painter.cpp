#include "forms/paint/Painter.h"

#include <algorithm>
#include <array>

#include "forms/WideText.h"

namespace sonaro {
namespace {

struct StyleSpec {
  int size;  // 96-dpi pixels
  bool strong;
};

// In the order of TextStyle; the first is what Default comes to where no kind says otherwise.
constexpr std::array<StyleSpec, 13> kStyles = {{{12, false},
                                                {11, false},
                                                {11, true},
                                                {12, false},
                                                {12, true},
                                                {13, false},
                                                {13, true},
                                                {14, true},
                                                {18, true},
                                                {19, true},
                                                {20, true},
                                                {34, true},
                                                {46, true}}};

// The first font found is enough: 0 ends the search.
int CALLBACK NoteFont(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

// Asking the system for a face that it lacks gives another one without a word.
bool HasFace(HDC dc, const wchar_t* face) {
  LOGFONTW wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynW(wanted.lfFaceName, face, LF_FACESIZE);
  bool found = false;
  EnumFontFamiliesExW(dc, &wanted, NoteFont, reinterpret_cast<LPARAM>(&found), 0);
  return found;
}

// Segoe UI, its semibold sister for headings; the message font where a system has neither.
LOGFONTW FaceFor(bool strong) {
  LOGFONTW font{};
  const HDC screen = GetDC(nullptr);
  if (strong && HasFace(screen, L"Segoe UI Semibold")) {
    lstrcpynW(font.lfFaceName, L"Segoe UI Semibold", LF_FACESIZE);
    font.lfWeight = FW_DONTCARE;  // the face is semibold by itself; some systems would put a weight on top
  } else if (HasFace(screen, L"Segoe UI")) {
    lstrcpynW(font.lfFaceName, L"Segoe UI", LF_FACESIZE);
    font.lfWeight = strong ? FW_SEMIBOLD : FW_NORMAL;
  } else {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    font = metrics.lfMessageFont;
    font.lfWeight = strong ? FW_BOLD : FW_NORMAL;
  }
  ReleaseDC(nullptr, screen);
  return font;
}

// The last row has the last colour: as many steps as rows, less one.
Color Between(Color top, Color bottom, int step, int steps) {
  if (top == bottom || steps <= 1) return top;
  const auto channel = [&](int from, int to) {
    return static_cast<std::uint8_t>(from + (to - from) * step / (steps - 1));
  };
  return {channel(top.red, bottom.red), channel(top.green, bottom.green), channel(top.blue, bottom.blue)};
}

// The shape with cut corners, row by row: what makes its 45-degree edges the same on every screen.
struct CutSpan {
  RECT box;
  int cut;
  int Left(int y) const { return box.left + std::max(0, cut - (y - static_cast<int>(box.top))); }
  int Right(int y) const { return box.right - std::max(0, cut - (static_cast<int>(box.bottom) - 1 - y)); }
};

// ExtTextOut with an opaque rectangle fills without a brush: no object is made and freed for each span.
void FillSpan(HDC dc, int left, int right, int y, Color color) {
  if (right <= left) return;
  const RECT line = {left, y, right, y + 1};
  SetBkColor(dc, ToColorRef(color));
  ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &line, nullptr, 0, nullptr);
}

}  // namespace

Painter::Painter(const FaceplateColors& colors, int dpi)
    : colors_(colors), dpi_(dpi), measuring_(CreateCompatibleDC(nullptr)) {}

Painter::~Painter() {
  DeleteDC(measuring_);  // before the font that it holds
  for (const HFONT font : fonts_) {
    if (font) DeleteObject(font);
  }
}

// Made when first used: a form needs few of them. The negative height is that of the letters,
// without the leading above them.
HFONT Painter::Font(TextStyle style) const {
  HFONT& font = fonts_[static_cast<std::size_t>(style)];
  if (!font) {
    const StyleSpec& spec = kStyles[static_cast<std::size_t>(style)];
    std::optional<LOGFONTW>& face = faces_[spec.strong ? 1 : 0];
    if (!face) face = FaceFor(spec.strong);
    LOGFONTW description = *face;
    description.lfHeight = -Px(spec.size);
    description.lfWidth = 0;
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfQuality = CLEARTYPE_QUALITY;
    font = CreateFontIndirectW(&description);
  }
  return font;
}

void Painter::Fill(HDC dc, const RECT& box, Color color) const {
  SetBkColor(dc, ToColorRef(color));
  ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &box, nullptr, 0, nullptr);
}

// One call of the system, which runs from edge to edge in 16-bit channels.
void Painter::Gradient(HDC dc, const RECT& box, Color top, Color bottom) const {
  if (top == bottom) return Fill(dc, box, top);
  const auto corner = [](LONG x, LONG y, Color color) {
    const auto wide = [](std::uint8_t channel) { return static_cast<COLOR16>(channel << 8); };
    return TRIVERTEX{x, y, wide(color.red), wide(color.green), wide(color.blue), 0};
  };
  TRIVERTEX corners[] = {corner(box.left, box.top, top), corner(box.right, box.bottom, bottom)};
  GRADIENT_RECT whole = {0, 1};
  GdiGradientFill(dc, corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);
}

void Painter::Frame(HDC dc, const RECT& box, Color color, int width) const {
  CutFrame(dc, box, 0, color, width);
}

void Painter::Text(HDC dc, const RECT& box, std::string_view text, TextStyle style, Color color,
                   UINT format) const {
  Text(dc, box, std::wstring_view(Widen(text)), style, color, format);
}

// Wrapped texts break as in an edit, also inside a word that is too long; a partly seen last line is left
// out.
void Painter::Text(HDC dc, const RECT& box, std::wstring_view text, TextStyle style, Color color,
                   UINT format) const {
  const UINT layout = (format & DT_WORDBREAK) != 0 ? DT_EDITCONTROL | DT_END_ELLIPSIS
                                                   : DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
  // It stays selected: to select one costs much on some systems, and the context is a buffer's, which goes
  // before the font does.
  SelectObject(dc, Font(style));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, ToColorRef(color));
  RECT place = box;
  const std::wstring plain = (format & DT_HIDEPREFIX) != 0 ? WithoutAccessKey(text) : std::wstring();
  if (!plain.empty()) {  // not every system hides the underline by the flag
    text = plain;
    format = (format & ~static_cast<UINT>(DT_HIDEPREFIX)) | DT_NOPREFIX;
  }
  DrawTextW(dc, text.data(), static_cast<int>(text.size()), &place, format | layout);
}

// In a device context of its own: texts are measured before there is anything to paint on.
SIZE Painter::Measure(std::wstring_view text, TextStyle style, UINT format) const {
  RECT place{};
  MeasureIn(place, text, style, format | DT_SINGLELINE);
  return {place.right - place.left, place.bottom - place.top};
}

int Painter::WrappedHeight(std::wstring_view text, TextStyle style, int width) const {
  RECT place = {0, 0, width, 0};
  MeasureIn(place, text, style, DT_NOPREFIX | DT_WORDBREAK | DT_EDITCONTROL);
  return place.bottom;
}

// A capital with a letter that goes below the line.
int Painter::LineHeight(TextStyle style) const { return static_cast<int>(Measure(L"Xg", style).cy); }

void Painter::MeasureIn(RECT& place, std::wstring_view text, TextStyle style, UINT format) const {
  SelectObject(measuring_, Font(style));
  DrawTextW(measuring_, text.data(), static_cast<int>(text.size()), &place, format | DT_CALCRECT);
}

// Only the program mark has two colours: its needle is lit where the mark has the colour of text, and goes
// with the mark where that is muted.
void Painter::DrawIcon(HDC dc, Icon icon, int x, int y, int designSize, Color color) const {
  if (icon == Icon::ProgramMark) {
    icons_.DrawProgramMark(dc, x, y, Px(designSize), {color, color == colors_.text ? colors_.accent : color});
  } else {
    icons_.Draw(dc, icon, x, y, designSize, Px(designSize), color);
  }
}

// The rows of the cut corners one by one, what is between them in one call.
void Painter::CutShape(HDC dc, const RECT& box, int cut, Color top, Color bottom, Color edge) const {
  const int height = static_cast<int>(box.bottom - box.top);
  const int rows = std::min(cut, height);
  const CutSpan shape = {box, cut};
  const auto fillRow = [&](int y) {
    FillSpan(dc, shape.Left(y), shape.Right(y), y,
             Between(top, bottom, y - static_cast<int>(box.top), height));
  };
  for (int row = 0; row < rows; ++row) {
    fillRow(static_cast<int>(box.top) + row);
    fillRow(static_cast<int>(box.bottom) - 1 - row);
  }
  if (2 * rows < height) {
    Gradient(dc, {box.left, box.top + rows, box.right, box.bottom - rows}, Between(top, bottom, rows, height),
             Between(top, bottom, height - 1 - rows, height));
  }
  CutFrame(dc, box, cut, edge, Line());
}

// Rows of the cut corners first, from both ends, then the straight sides.
void Painter::CutFrame(HDC dc, const RECT& box, int cut, Color color, int width) const {
  const CutSpan outer = {box, cut};
  // So much of the cut that the slanting edges look as wide as the straight ones.
  const CutSpan inner = {{box.left + width, box.top + width, box.right - width, box.bottom - width},
                         std::max(0, cut - (width + 1) / 2)};
  const auto frameRow = [&](int y) {
    if (y < inner.box.top || y >= inner.box.bottom) {
      FillSpan(dc, outer.Left(y), outer.Right(y), y, color);
    } else {
      FillSpan(dc, outer.Left(y), std::max(outer.Left(y), inner.Left(y)), y, color);
      FillSpan(dc, std::min(outer.Right(y), inner.Right(y)), outer.Right(y), y, color);
    }
  };
  const int rows = std::min(std::max(cut, width), static_cast<int>(box.bottom - box.top) / 2);
  for (int row = 0; row < rows; ++row) {
    frameRow(static_cast<int>(box.top) + row);
    frameRow(static_cast<int>(box.bottom) - 1 - row);
  }
  Fill(dc, {box.left, box.top + rows, box.left + width, box.bottom - rows}, color);
  Fill(dc, {box.right - width, box.top + rows, box.right, box.bottom - rows}, color);
}

// The light edge below makes the glass lie deeper than the plate.
void Painter::Glass(HDC dc, const RECT& box, int cut) const {
  CutShape(dc, box, cut, colors_.glass, colors_.glass, colors_.frame);
  const RECT light = {box.left, box.bottom, box.right - cut, box.bottom + Line()};
  Fill(dc, light, colors_.milledSoft);
}

// Two lines, dark above light: light falls from above.
void Painter::Groove(HDC dc, int x, int y, int width) const {
  Fill(dc, {x, y, x + width, y + Line()}, colors_.groove);
  Fill(dc, {x, y + Line(), x + width, y + 2 * Line()}, colors_.milledSoft);
}

// A bitmap like the screen's and what paints in it.
struct BufferedPaint::Canvas {
  explicit Canvas(SIZE pixels) : size(pixels), dc(CreateCompatibleDC(nullptr)) {
    const HDC screen = GetDC(nullptr);
    bitmap = CreateCompatibleBitmap(screen, size.cx, size.cy);
    ReleaseDC(nullptr, screen);
    before = SelectObject(dc, bitmap);
  }
  ~Canvas() {
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  bool Holds(SIZE pixels) const { return size.cx >= pixels.cx && size.cy >= pixels.cy; }

  const SIZE size;
  const HDC dc;
  HBITMAP bitmap = nullptr;
  HGDIOBJ before = nullptr;
  bool used = false;
};

std::unique_ptr<BufferedPaint::Canvas>& BufferedPaint::Kept() {
  static std::unique_ptr<Canvas> kept;
  return kept;
}

// Making a bitmap costs as much as painting a button in it, so one is kept that holds buttons and rows; a
// list is rarer, and its bitmap large. The origin is moved, so that whoever paints uses the coordinates of
// the target.
BufferedPaint::BufferedPaint(HDC target, const RECT& box) : target_(target), box_(box) {
  constexpr SIZE kMaxKept = {512, 64};  // pixels, 128 KB
  const SIZE size = {std::max<LONG>(1, box.right - box.left), std::max<LONG>(1, box.bottom - box.top)};
  std::unique_ptr<Canvas>& kept = Kept();
  if (size.cx > kMaxKept.cx || size.cy > kMaxKept.cy || (kept && kept->used)) {
    own_ = std::make_unique<Canvas>(size);
  } else if (!kept) {
    kept = std::make_unique<Canvas>(size);
  } else if (!kept->Holds(size)) {
    kept = std::make_unique<Canvas>(SIZE{std::max(size.cx, kept->size.cx), std::max(size.cy, kept->size.cy)});
  }
  canvas_ = own_ ? own_.get() : kept.get();
  canvas_->used = true;
  SaveDC(canvas_->dc);
  SetViewportOrgEx(canvas_->dc, -box.left, -box.top, nullptr);
}

BufferedPaint::~BufferedPaint() {
  BitBlt(target_, box_.left, box_.top, box_.right - box_.left, box_.bottom - box_.top, canvas_->dc, box_.left,
         box_.top, SRCCOPY);
  RestoreDC(canvas_->dc, -1);
  canvas_->used = false;
}

HDC BufferedPaint::Dc() const { return canvas_->dc; }

}  // namespace sonaro
