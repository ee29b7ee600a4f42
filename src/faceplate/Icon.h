// The names of the icons. How each one is drawn stands in forms/paint/Icons.
#pragma once

namespace sonaro {

enum class Icon : unsigned char {
  None,
  Play,
  Web,
  Menu,
  Help,
  Tray,
  Min,
  Close,
  Options,
  Sched,
  Scan,
  Update,
  Recent,
  Search,
  Up,
  Down,
  Right,
  Left,
  Skip,
  Pause,
  Remove,
  Add,
  Modify,
  Clear,
  Pin,
  New,
  Popular,
  Overall,
  Sound,
  Speed,
  Reliable,
  Info,
  Warn,
  Check,
  Bell,
  Fav,
  Sort,
  Filter,
  OwnOrder,
  TriDown,
  ProgramMark  // drawn in several colours on a 20 x 20 grid
};

}  // namespace sonaro
