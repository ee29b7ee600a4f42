// The current faceplate: its name, its colours, and where its sound, picture and outline files lie. Owned by
// Application; windows read Colors() when they paint. It draws nothing and plays nothing.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "faceplate/FaceplateColors.h"

namespace sonaro {

class CReg;
class DataFolder;

// Files of a faceplate.
inline constexpr const char* kClickSound = "xdf53.wav";
inline constexpr const char* kNotifySound = "gdf55.wav";

class Faceplate {
 public:
  // Starts as Graphite; Load reads the settings.
  Faceplate(CReg& settings, const DataFolder& folder);

  // Takes name and colours from the settings. A colour that is missing or no colour comes from the built-in
  // faceplate of that name, and from Graphite for any other name. Stores nothing.
  void Load();
  // Makes a built-in faceplate the current one and stores its name and its twenty colours.
  void Choose(BuiltInFaceplate faceplate);
  // Shows a built-in faceplate's colours and stores nothing: name and settings stay, Load ends it.
  void Try(BuiltInFaceplate faceplate) { SetBase(BuiltInColors(faceplate)); }

  const std::string& Name() const { return name_; }
  const FaceplateColors& Colors() const { return shown_; }

  // Draws with the system's colours until told otherwise; name and stored colours stay.
  void UseHighContrast(const std::function<Color(SystemColor)>& systemColor);
  void EndHighContrast();

  // The path of one of the faceplate's files, such as kClickSound, whether or not it exists.
  std::string FilePath(std::string_view fileName) const;

 private:
  void SetBase(const BaseColors& base);

  CReg& settings_;
  const DataFolder& folder_;
  std::string name_;
  FaceplateColors own_;
  FaceplateColors shown_;
};

}  // namespace sonaro
