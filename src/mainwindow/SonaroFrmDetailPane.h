// The selected station at the right of the main window, and what can be done with a station: it is played,
// its web site opened, it goes to the scan or the schedule. In a menu the commands mean the station that the
// menu was opened for. Part of SonaroFrm.
#pragma once

#include <array>

#include "mainwindow/MainPane.h"

namespace sonaro {

class DetailPane final : public EventTarget {
 public:
  explicit DetailPane(const MainContext& context)
      : context_(context), form_(context.form), subject_(context.models.subject) {}

  void Load();
  void LoadNoStation();
  // Shows the station; a key that no station has shows that none is selected.
  void Show(const StationKey& station);
  // A station may lack a first link and have others: plays the first that there is.
  void PlayFirst() { butGoMediaLink_Click(0); }

 private:
  std::span<const EventRow> Events() const override;
  void ShowRatings(const StationDetail& detail);
  void ShowPlayButtons(const StationDetail& detail);
  void Play(const PlayButton& button);

  void butGoMediaLink_Click(int link);
  void mnuActionPlay_Click(int link);
  void mnuActionPlayExtra_Click(int link);
  void butPlayExtraIt_Click() { mnuActionPlayExtra_Click(0); }
  void butGoWebPageIt_Click();
  void mnuActionCopyLink_Click();
  void mnuActionAddToScan_Click();
  void mnuActionSchedule_Click();
  void mnuActionExtraLink_Click();

  const MainContext& context_;
  Form& form_;
  CommandSubject& subject_;
  Picture picNoStation_{form_, picNoStation};
  Picture picHairAbove_{form_, picHairAbove};
  Picture picHairBelow_{form_, picHairBelow};
  Picture picPin_{form_, picPin};
  Label lblStationName_{form_, lblStationName};
  Label lblStationLocation_{form_, lblStationLocation};
  Edit txtDescription_{form_, txtDescription};
  std::array<RatingHandle, StationDetail::kRatings> ratings_{
      {{form_, imgOverAll}, {form_, imgSound}, {form_, imgSpeed}, {form_, imgWebSite}}};
  ControlArray<TwoLineButton> butGoMediaLink_{form_, butGoMediaLinkOneIt, StationDetail::kPlayButtons};
  Button butGoWebPageIt_{form_, butGoWebPageIt};
  Button butPlayExtraIt_{form_, butPlayExtraIt};
  Button butAddToGroupIt_{form_, butAddToGroupIt};
};

}  // namespace sonaro
