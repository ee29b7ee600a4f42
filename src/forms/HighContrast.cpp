#include "forms/HighContrast.h"

#include <windows.h>

#include "faceplate/Faceplate.h"

namespace sonaro {

void FollowHighContrast(Faceplate& faceplate) {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  const BOOL known = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
  if (!known || (contrast.dwFlags & HCF_HIGHCONTRASTON) == 0) {
    faceplate.EndHighContrast();
    return;
  }
  faceplate.UseHighContrast([](SystemColor index) {
    const COLORREF color = GetSysColor(static_cast<int>(index));
    return Color{GetRValue(color), GetGValue(color), GetBValue(color)};
  });
}

}  // namespace sonaro
