// The event tables: which handler runs for what happens to which control.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "forms/controls/FormControl.h"

namespace sonaro {

class EventTarget;
class Form;

// Rows of the event tables. The kind of event fixes the handler's parameters; a row with the wrong kind of
// handler does not compile.
class EventRow {
 public:
  using Kind = FormEvent::Kind;
  enum Plain : unsigned char {
    Click = static_cast<unsigned char>(Kind::Click),
    Change = static_cast<unsigned char>(Kind::Change),
    SelChange = static_cast<unsigned char>(Kind::SelChange),
    EnterPressed = static_cast<unsigned char>(Kind::EnterPressed)
  };
  enum OfRow : unsigned char {
    ItemActivated = static_cast<unsigned char>(Kind::ItemActivated),
    ItemSelected = static_cast<unsigned char>(Kind::ItemSelected),
    BeginDrag = static_cast<unsigned char>(Kind::BeginDrag),
    ItemStarred = static_cast<unsigned char>(Kind::ItemStarred)
  };
  enum AtPoint { ContextMenu };
  enum OfNode { NodeClick };

  template <class T>
  EventRow(int id, Plain event, void (T::*handler)())
      : first(id), kind(static_cast<Kind>(event)), plain(static_cast<void (EventTarget::*)()>(handler)) {}
  // A control array: `count` controls from `id` on; the handler is given the index.
  template <class T>
  EventRow(int id, Plain event, void (T::*handler)(int), int arraySize)
      : first(id),
        count(arraySize),
        kind(static_cast<Kind>(event)),
        withIndex(static_cast<void (EventTarget::*)(int)>(handler)) {}
  template <class T>
  EventRow(int id, OfRow event, void (T::*handler)(int row))
      : first(id),
        kind(static_cast<Kind>(event)),
        withRow(static_cast<void (EventTarget::*)(int)>(handler)) {}
  // Of a control array: the handler is given the index.
  template <class T>
  EventRow(int id, OfRow event, void (T::*handler)(int index), int arraySize) : EventRow(id, event, handler) {
    count = arraySize;
  }
  // Row of a list, data of a node, or index of a control array (count > 1), -1: none; screen pixels.
  template <class T>
  EventRow(int id, AtPoint, void (T::*handler)(int row, POINT at), int arraySize = 1)
      : first(id),
        count(arraySize),
        kind(Kind::ContextMenu),
        atPoint(static_cast<void (EventTarget::*)(int, POINT)>(handler)) {}
  template <class T>
  EventRow(int id, OfNode, void (T::*handler)(HTREEITEM node))
      : first(id), kind(Kind::NodeClick), withNode(static_cast<void (EventTarget::*)(HTREEITEM)>(handler)) {}

  // For Form's inside only.
  int first = 0;
  int count = 1;
  Kind kind = Kind::Click;
  void (EventTarget::*plain)() = nullptr;
  void (EventTarget::*withIndex)(int) = nullptr;
  void (EventTarget::*withRow)(int) = nullptr;
  void (EventTarget::*atPoint)(int, POINT) = nullptr;
  void (EventTarget::*withNode)(HTREEITEM) = nullptr;
};

struct TimerRow {
  template <class T>
  TimerRow(int timerId, void (T::*timerHandler)())
      : id(timerId), handler(static_cast<void (Form::*)()>(timerHandler)) {}
  int id;
  void (Form::*handler)();
};

// Who handles events: a form, or a pane of it that knows the form's controls and has handlers of its own. A
// pane is a member of its form, which adds it with Form::AddPart.
class EventTarget {
 public:
  virtual std::span<const EventRow> Events() const = 0;

 protected:
  virtual ~EventTarget() = default;

  using Plain = EventRow::Plain;
  static constexpr auto Click = EventRow::Click;
  static constexpr auto Change = EventRow::Change;
  static constexpr auto SelChange = EventRow::SelChange;
  static constexpr auto EnterPressed = EventRow::EnterPressed;
  static constexpr auto ItemActivated = EventRow::ItemActivated;
  static constexpr auto ItemSelected = EventRow::ItemSelected;
  static constexpr auto BeginDrag = EventRow::BeginDrag;
  static constexpr auto ItemStarred = EventRow::ItemStarred;
  static constexpr auto ContextMenu = EventRow::ContextMenu;
  static constexpr auto NodeClick = EventRow::NodeClick;
};

}  // namespace sonaro
