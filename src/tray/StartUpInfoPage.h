// The pages of the dialog frmStartUpInfo.
#pragma once

namespace sonaro {

enum class StartUpInfoPage {
  Player,        // at the start: no player is registered
  Proxy,         // at the start: a proxy was found
  NoPlayer,      // a station has no player
  ChoosePlayer,  // asked for by the user
};

}  // namespace sonaro
