// The pages of the dialog frmStartUpInfo.
#pragma once

namespace sonaro {

enum class StartUpInfoPage { Player, Proxy, NoPlayer };

}  // namespace sonaro
