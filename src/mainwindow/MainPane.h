// What the panes of the main window are made of and what they ask of the window around them. A pane knows its
// own controls, shows them, and has the handlers of their events; SonaroFrm owns the panes and decides which
// are shown.
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "mainwindow/MainModels.h"
#include "settings/Message.h"

namespace sonaro {

class HelpPages;
class PlayerLaunch;
class StationScan;
class UndoList;
class WebBrowser;

// What the main window uses of the rest of the program; owned by Application.
struct MainServices {
  PlayerLaunch& player;
  StationScan& scan;
  WebBrowser& pages;
  HelpPages& help;
  MessageBoxView& messages;
  ScheduleCommands& schedule;
  UpdateCommands& update;
  ProgramCommands& program;
  UndoList& undo;
};

// The window around the panes.
class MainView {
 public:
  virtual ~MainView() = default;
  virtual void ShowView(View view) = 0;
  // After every change of what the window shows.
  virtual void ShowEverything() = 0;
  // Words were typed that a list goes by: TakeTyped of the panes follows as soon as no key waits any more.
  virtual void Typed() = 0;
  // The user is about to type.
  virtual void PrepareTyping() = 0;
  // Another row is selected.
  virtual void ShowSelection() = 0;
  // The user's own stations, or links that he has added to others, are new.
  virtual void PersonalStationsChanged() = 0;
};

// What all panes share; a member of SonaroFrm.
struct MainContext {
  Form& form;
  FormContext& forms;
  GuideData data;
  MainServices services;
  MainModels& models;
  MainView& view;

  // Opens a menu whose commands are about `subject`.
  void PopUpMenuFor(CommandSubject::Menu subject, const MenuEntries& menu, POINT at) const {
    auto before = models.subject.Open(std::move(subject));
    form.PopUpMenu(menu, at);
    models.subject.Close(std::move(before));
  }
};

}  // namespace sonaro
