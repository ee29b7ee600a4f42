// The selected station at the right of the main window. Part of SonaroFrm.
#pragma once

namespace sonaro {

class Form;
struct StationDetailBuilder;

class DetailPane {
 public:
  explicit DetailPane(Form& form) : form_(form) {}

  void Load();
  void Show(const StationDetailBuilder& detail);

 private:
  void ShowRatings(const StationDetailBuilder& detail);
  void ShowPlayButtons(const StationDetailBuilder& detail);

  Form& form_;
};

}  // namespace sonaro
