// A month calendar to choose a date from.
#pragma once

#include <optional>

#include "base/Dates.h"
#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class HelpPages;

class frmDateFinder final : public Form {
 public:
  frmDateFinder(FormContext& context, HelpPages& help, const Date& today, const Date& shown)
      : Form(context, Design()), help_(help), today_(today), chosen_(shown) {}

  // Runs the dialog. Nothing when it was cancelled.
  std::optional<Date> Choose(HWND owner);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void Show(const Date& date);

  void calDates_Change();
  void butToday_Click() { Show(today_); }
  void butOKIt_Click() { Close(1); }
  void butCancelIt_Click() { Close(); }
  void butHelp_Click();

  HelpPages& help_;
  Date today_;
  Date chosen_;

  MonthCalendar calDates_{*this, calDates};
  Label lblWeekday_{*this, lblWeekday};
  Label lblDay_{*this, lblDay};
  Label lblMonthYear_{*this, lblMonthYear};
};

}  // namespace sonaro
