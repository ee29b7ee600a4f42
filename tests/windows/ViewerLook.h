// How the viewers dress their form: a faceplate, or a high-contrast theme that the system need not run.
#pragma once

#include <string>

#include "windows/FormContextForTests.h"

namespace sonaro {

// "Porcelain" or "Contrast", anything else is Graphite. The form is open.
inline void DressForm(Form& form, FormContextForTests& context, const std::string& look) {
  if (look == "Porcelain") context.faceplate.Choose(BuiltInFaceplate::Porcelain);
  if (look == "Contrast") {
    context.faceplate.UseHighContrast([](SystemColor color) {
      switch (color) {
        case SystemColor::Window:
        case SystemColor::ButtonFace:
        case SystemColor::HighlightText:
          return Rgb(0x000000);
        case SystemColor::Highlight:
          return Rgb(0x1AEBFF);
        case SystemColor::HotLight:
          return Rgb(0xFFFF00);
        default:
          return Rgb(0xFFFFFF);
      }
    });
  }
  form.RefreshLook();
}

}  // namespace sonaro
