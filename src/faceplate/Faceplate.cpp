#include "faceplate/Faceplate.h"

#include "base/DataFolder.h"
#include "base/Text.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr std::string_view kFolder = "\\Depot\\";

BuiltInFaceplate DefaultsFor(std::string_view name) {
  const std::string_view porcelain = kBuiltInNames[static_cast<std::size_t>(BuiltInFaceplate::Porcelain)];
  return EqualIgnoringCase(name, porcelain) ? BuiltInFaceplate::Porcelain : BuiltInFaceplate::Graphite;
}

}  // namespace

Faceplate::Faceplate(CReg& settings, const DataFolder& folder)
    : settings_(settings), folder_(folder), name_(kBuiltInNames.front()) {
  SetBase(BuiltInColors(BuiltInFaceplate::Graphite));
}

void Faceplate::Load() {
  name_ = settings_.Get(setting::kFacePlateName);
  if (name_.empty()) name_ = kBuiltInNames.front();
  // Colours that are stored win; one that is missing or makes no sense comes from the built-in faceplate of
  // that name.
  BaseColors base = BuiltInColors(DefaultsFor(name_));
  for (const ColorSetting& color : ColorSettings()) {
    const auto stored = ParseColor(settings_.Get(color.setting));
    if (stored) base.*color.member = *stored;
  }
  SetBase(base);
}

void Faceplate::Choose(BuiltInFaceplate faceplate) {
  name_ = kBuiltInNames[static_cast<std::size_t>(faceplate)];
  const BaseColors base = BuiltInColors(faceplate);
  // All colours are stored, not just the name, so that an earlier faceplate leaves none behind.
  const SettingsBatch batch(settings_);
  settings_.Set(setting::kFacePlateName, name_);
  for (const ColorSetting& color : ColorSettings())
    settings_.Set(color.setting, FormatColor(base.*color.member));
  SetBase(base);
}

void Faceplate::SetBase(const BaseColors& base) {
  own_ = DeriveColors(base);
  // High contrast is the user's choice for the whole system and goes before any faceplate.
  if (!shown_.highContrast) shown_ = own_;
}

void Faceplate::UseHighContrast(const std::function<Color(SystemColor)>& systemColor) {
  shown_ = HighContrastColors(systemColor);
}

void Faceplate::EndHighContrast() { shown_ = own_; }

std::string Faceplate::FilePath(std::string_view fileName) const {
  return folder_.Path(std::string(kFolder).append(fileName));
}

}  // namespace sonaro
