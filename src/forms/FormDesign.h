// A window as data: its size, outline, controls, other layouts and keyboard shortcuts. Tables of these rows
// stand in frmXxx_tables.cpp; Form builds the window from them and forms/Arrange places the
// controls. All measures are pixels of a 96-dpi screen. Nothing here knows the platform.
#pragma once

#include <span>

#include "faceplate/Icon.h"

namespace sonaro {

namespace setting {
struct Text;
}

struct DesignSize {
  int width = 0;
  int height = 0;
};

struct DesignRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// What a row of a control table becomes. Every kind but Glass and Groove is a real window with the row's
// number, a direct child of the form, so that GetDlgItem, the keyboard and screen readers find it.
enum class ControlKind : unsigned char {
  // Texts: static controls that let the mouse through to the form, so that dragging works on them.
  Label,       // one line with an end ellipsis, or wrapped (kWrap); with an icon, that alone, as wide as it
  TitleBar,    // a dialog's title in its nameplate, with the program mark before it; normally lblTitle
  StateLabel,  // as Label, but screen readers are told of every change: status lines, time left
  // Buttons: controls of class Button, drawn by Painter. The text is the accessible name and carries the "&".
  PushButton,     // icon and text
  PrimaryButton,  // the one that Enter presses; at most one shown at a time
  ToggleButton,  // push button that can be active (SetActive); an array of them is moved through by the arrow
                 // keys
  StripButton,   // icon only; the text becomes the tool tip
  RankingButton,  // toggle with icon at the left
  GroupButton,    // toggle "1 Jazz", or an empty socket (GroupButton::SetEmptySocket)
  PlayButton,     // two lines: text "Play MP3", second line by TwoLineButton::SetDetail
  HeaderButton,   // over a list column: SetSortMark shows the active one
  TabButton,      // one of the dial's tabs (SetActive); stands on a row of kind Dial
  CheckBox,
  RadioButton,  // one of its group is checked
  // Texts that the user types.
  Edit,
  MultiEdit,     // several lines
  ReadOnlyText,  // several lines to read, select and copy; no glass of its own
  Combo,         // drop list
  ComboEdit,     // with an edit field
  // Views, each with a class of its own in forms/.
  ListView,       // reach it by ListHandle
  TreeView,       // by TreeHandle
  MonthCalendar,  // the system's control
  Picture,        // painted by the function that Picture::SetPainter was given
  Rating,         // rating picture, by RatingHandle; the text is its caption
  Progress,       // progress scale, by ProgressHandle
  // Painted by the form behind the controls, no windows. Number 0 unless they are to be hidden and shown.
  Glass,   // panel; `cut` is the size of its cut corners
  Dial,    // the tab dial's glass and ticks
  Groove,  // horizontal engraved line
  Slots,   // vent slots
  Mark,    // the program mark
};

// Which edges of the form a control's edges keep their distance to.
enum Anchor : unsigned char { kLeft = 1, kTop = 2, kRight = 4, kBottom = 8, kLeftTop = kLeft | kTop };

enum ControlFlag : unsigned {
  kNone = 0,
  kTabStop = 1,    // for the kinds that are not tab stops anyway (ReadOnlyText, StripButton in frmSplash ...)
  kNoTabStop = 2,  // the opposite
  // Toggle buttons and radio buttons in a run of rows form a group: one of them is the tab stop and the arrow
  // keys move among them. kGroup starts another group within such a run.
  kGroup = 4,
  kHidden = 8,     // hidden until Show
  kDisabled = 16,  // disabled until Enable
  kWrap = 32,      // Label: several lines
  kRightAligned = 64,
  kCentred = 128,
  kOnGlass = 256,    // the control stands on glass: default colours and corners are those of glass
  kSecondary = 512,  // PlayButton: not the first link, drawn as a plain button. Label: muted
  kNoPrefix = 1024,  // "&" in the text is an ordinary character (names of stations and groups)
};

// What a header button says about the order of its list.
enum class SortMark : unsigned char { None, Up, Down };

// Text sizes of the faceplate's one family; Default follows from the kind.
enum class TextStyle : unsigned char {
  Default,
  Small,          // 11
  SmallStrong,    // 11, semibold
  Body,           // 12
  BodyStrong,     // 12, semibold
  Message,        // 13
  MessageStrong,  // 13, semibold
  Title,          // 14, semibold
  Notice,         // 18, semibold
  Heading,        // 19, semibold
  Wordmark,       // 20, semibold
  Day,            // 34, semibold
  Splash,         // 46, semibold
};

// Colours of texts by their job; Default follows from the kind and kOnGlass.
enum class TextColor : unsigned char {
  Default,
  Text,
  Muted,
  GlassText,
  GlassMuted,
  TabText,
  Accent,
  Signal,
  Alert,
  Off
};

// The number of a text (resources/texts), or a text that is not a dialog word ("...", ":").
struct ControlText {
  constexpr ControlText() = default;
  constexpr ControlText(int stringId) : id(stringId) {}      // NOLINT: rows read better without a conversion
  constexpr ControlText(const char* plain) : text(plain) {}  // NOLINT
  int id = 0;
  const char* text = "";
};

// One control. The order of the rows is the tab order; a label stands just before the control that it names,
// which is what gives that control its spoken name. A control array is a run of rows with consecutive
// numbers.
struct ControlRow {
  int id = 0;  // from ControlIds.h; 0 for decorations and captions that are never addressed
  ControlKind kind = ControlKind::Label;
  ControlText text;
  DesignRect at;
  Icon icon = Icon::None;
  unsigned flags = kNone;
  unsigned char anchors = kLeftTop;
  TextStyle style = TextStyle::Default;
  TextColor color = TextColor::Default;
  unsigned char pane = 0;  // 0: always there; else shown and hidden together by Form::ShowPane
  unsigned char cut = 0;   // corner cut of Glass
};

// Another layout of the same controls, such as the compact form of a window. Controls that it does not name
// are hidden, or stay where they are; a place without a size hides its control. Decorations need a number to
// be named. Without a size of its own the layout has the size and the outline of the design.
struct Bounds {
  int id = 0;
  DesignRect at;
};
struct Layout {
  DesignSize size = {};
  const char* outline = "";
  std::span<const Bounds> places;
  enum class Others { Hidden, AsDesigned } others = Others::Hidden;
};

// How the controls that stand within a rectangle go with a window that the user makes larger: how much of
// what it gained each side of the rectangle moves by, in percent. Edges between go in proportion: where
// both ends move alike, controls keep their size. The first that holds a control counts, smaller ones stand
// before larger. A control in none goes by its anchors.
struct Stretch {
  DesignRect at;
  unsigned char left = 0;
  unsigned char right = 0;
  unsigned char top = 0;
  unsigned char bottom = 0;
  unsigned char pane = 0;  // 0: controls of any
};

// A key of the keyboard that does what pressing the control (or choosing the menu entry) `command` does. A
// row can stand for a run of keys, each with the next command: '1' to '9' for a control array.
enum KeyModifier : unsigned char { kPlain = 0, kShift = 1, kCtrl = 2, kAlt = 4 };
struct KeyRow {
  int key = 0;  // virtual key code: 'F', VK_F5
  unsigned char modifiers = kPlain;
  int command = 0;
  int onlyIn = 0;  // only while this control has the focus; 0 = everywhere in the window
  int keys = 1;
  int controls = 1;  // from `onlyIn` on
};

struct FormDesign {
  const char* name = "";  // the window class: "frmScan"
  ControlText caption;
  DesignSize size;
  const char* outline = "";  // key of the window's outline in the point file: "scf72"
  std::span<const ControlRow> controls;
  DesignSize outlineSize = {};  // of the window that the outline was made for, when this one is larger
  int titleGroove = 36;         // y of the groove under the title strip, 0 = none
  std::span<const Layout> layouts = {};  // layout 1, 2 ...; layout 0 is this design itself
  std::span<const KeyRow> keys = {};
  // Panes that are hidden at first and whose controls are made when one of them is first used or shown, at
  // the latest once the form has been painted. What is to be done with them then is OnPaneMade's.
  std::span<const unsigned char> latePanes = {};
  int firstFocus = 0;        // 0 = the primary button, or the first tab stop
  bool draggable = true;     // moved by its background and passive labels
  bool besideModal = false;  // takes input while a modal form waits for its answer
  // With it the window can be made larger than its size, and maximised, in every layout without a size of its
  // own; this is where the size is kept.
  const setting::Text* keptSize = nullptr;
  // With it the edges between the form's header buttons, which all stand over one list, can be dragged; this
  // is where the columns' shares are kept.
  const setting::Text* keptColumns = nullptr;
  std::span<const Stretch> stretches = {};
};

}  // namespace sonaro
