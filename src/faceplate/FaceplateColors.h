// The colours that every window is drawn in: twenty that a faceplate chooses and keeps in the settings store,
// and those derived from them by fixed mixes, so that a new faceplate needs the twenty only. Pure values; the
// current set belongs to Faceplate.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>

#include "faceplate/Color.h"
#include "settings/SettingTypes.h"

namespace sonaro {

// What a faceplate chooses. Every name is the colour's job, never its hue.
struct BaseColors {
  Color plate;     // face of the windows behind the buttons
  Color plateTop;  // upper end of a window's gradient
  Color plateBottom;
  Color outline;    // outermost line of windows and edges of buttons
  Color milled;     // light line inside the outline
  Color groove;     // dark line of an engraved groove
  Color frame;      // around lists, trees and edits
  Color muted;      // secondary text on plate and glass, icons at rest
  Color zebra;      // every second row of a list
  Color focus;      // keyboard focus line
  Color accent;     // says "here": active tab, selected row, primary button
  Color onAccent;   // text and icons on accent
  Color signal;     // says "how much": rating ticks, reliability bars, progress
  Color alert;      // says "not well": unreliable station, error, overdue notice
  Color button;     // face of an enabled button
  Color buttonOff;  // face of a disabled button
  Color glass;      // ground of lists, trees, edits and readouts
  Color tabText;    // active tab, headings, active toggles
  Color text;       // on plate and on buttons
  Color glassText;  // on glass
  friend bool operator==(const BaseColors&, const BaseColors&) = default;
};

struct FaceplateColors : BaseColors {
  Color buttonTop, buttonBottom;  // gradient of a button at rest
  Color buttonHigh;               // light line under a button's upper edge
  Color buttonHover, buttonDown;
  Color buttonMuted;  // secondary text on a button
  Color buttonOn;     // face of an active toggle
  Color buttonOnLow;  // lower end of the lit tab's gradient, which begins with glass
  Color textOff;      // text and icon of a disabled control
  Color edgeOff;      // edge of a disabled button
  Color accentTop, accentBottom, accentHover, accentDown;
  Color rowSelected, rowSelectedOff;  // with and without the keyboard focus in the list
  Color rowSelectedText;              // on rowSelected; glassText except in high contrast
  Color rowHover;
  Color hair;     // hairlines on glass
  Color tickOff;  // unlit ticks and bars
  Color thumb, thumbHover;
  Color socket;       // floor of an empty group button
  Color milledSoft;   // light line of a groove
  Color milledInner;  // second line inside the window outline
  Color edgeControl;  // edge of check boxes and radio buttons
  Color glassMuted;   // secondary text on glass
  bool highContrast = false;
};

// One of the twenty: its setting, its place, and its value in the two built-in faceplates.
struct ColorSetting {
  setting::Text setting;
  Color BaseColors::*member;
  Color graphite;
  Color porcelain;
};
std::span<const ColorSetting> ColorSettings();

enum class BuiltInFaceplate { Graphite, Porcelain };
inline constexpr std::array<const char*, 2> kBuiltInNames = {"Graphite", "Porcelain"};
BaseColors BuiltInColors(BuiltInFaceplate faceplate);

FaceplateColors DeriveColors(const BaseColors& base);

// The colours of the system that a high-contrast theme sets; the values are the platform's indexes.
enum class SystemColor : int {
  Window = 5,
  WindowText = 8,
  Highlight = 13,
  HighlightText = 14,
  ButtonFace = 15,
  ButtonText = 18,
  HotLight = 26
};

// The colours to draw with while the system runs a high-contrast theme: taken from the theme, never mixed
// further than needed, selected rows in the theme's own pair.
FaceplateColors HighContrastColors(const std::function<Color(SystemColor)>& systemColor);

}  // namespace sonaro
