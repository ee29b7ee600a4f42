// The search form in the left column, and what the middle shows of a search of the web. Part of SonaroFrm.
#pragma once

#include "mainwindow/MainPane.h"

namespace sonaro {

class SearchPane final : public EventTarget {
 public:
  explicit SearchPane(const MainContext& context)
      : context_(context), form_(context.form), search_(context.models.search) {}

  void Load();
  void ShowWebSearch();

 private:
  std::span<const EventRow> Events() const override;
  void ShowHistory();
  // The first chosen of the first five kinds, otherwise the sixth.
  std::size_t ChosenKind() const;
  void FindStation();
  void butWebOpen_Click();

  const MainContext& context_;
  Form& form_;
  SearchPanel& search_;
};

}  // namespace sonaro
