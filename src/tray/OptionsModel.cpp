#include "tray/OptionsModel.h"

#include "base/Text.h"
#include "faceplate/Faceplate.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr const char* kHiddenStart = " WinStart=Yes";

// Nothing for a faceplate of another name, which stays in force until the user chooses one of these.
std::optional<BuiltInFaceplate> ReadFaceplate(const CReg& reg) {
  const std::string name = reg.Get(setting::kFacePlateName);
  if (name.empty()) return BuiltInFaceplate::Graphite;
  for (const BuiltInFaceplate faceplate : {BuiltInFaceplate::Graphite, BuiltInFaceplate::Porcelain})
    if (EqualIgnoringCase(name, kBuiltInNames[static_cast<std::size_t>(faceplate)])) return faceplate;
  return std::nullopt;
}

// Only what changes is written, so that a setting that was never set stays so.
template <class Type>
void StoreChange(CReg& reg, const Type& setting, typename Type::Given before, typename Type::Given wanted) {
  if (before != wanted) reg.Set(setting, wanted);
}

}  // namespace

Options OptionsModel::Read() const {
  Options now;
  now.startWithWindows = StartsWithWindows();
  now.afterClose = reg_.Get(setting::kCloseToTray);
  now.soundWithNotice = reg_.Get(setting::kSoundNotify);
  now.clickWithButtons = reg_.Get(setting::kSoundClick);
  now.useProxy = reg_.Get(setting::kProxyUse);
  now.proxy = {std::string(TrimBlanks(reg_.Get(setting::kProxyAddress))),
               std::string(TrimBlanks(reg_.Get(setting::kProxyPort)))};
  if (now.proxy.port.empty()) now.proxy.port = kUsualProxyPort;
  now.lookForPlayer = reg_.Get(setting::kStartPlayer);
  now.lookForProxy = reg_.Get(setting::kStartProxy);
  now.offerTutorial = reg_.Get(setting::kStartQuickStart);
  now.faceplate = ReadFaceplate(reg_);
  return now;
}

// One batch, so a portable file is saved once. A bad proxy is found before anything is written. Whether all
// was taken is seen by reading it back: the registry may refuse a value without a word.
StoreOutcome OptionsModel::Store(Options wanted) {
  const SettingsBatch batch(reg_);
  const Options before = Read();
  if (!wanted.useProxy) {
    wanted.proxy = before.proxy;
  } else if (CheckProxy(wanted.proxy) != ProxyFault::None) {
    return StoreOutcome::BadProxy;
  }
  wanted.proxy = {std::string(TrimBlanks(wanted.proxy.address)), std::string(TrimBlanks(wanted.proxy.port))};

  if (wanted.startWithWindows != before.startWithWindows) StoreStart(wanted.startWithWindows);
  StoreChange(reg_, setting::kCloseToTray, before.afterClose, wanted.afterClose);
  StoreChange(reg_, setting::kSoundNotify, before.soundWithNotice, wanted.soundWithNotice);
  StoreChange(reg_, setting::kSoundClick, before.clickWithButtons, wanted.clickWithButtons);
  if (wanted.useProxy != before.useProxy || wanted.proxy != before.proxy)
    StoreProxy(reg_, wanted.useProxy, wanted.proxy);
  StoreChange(reg_, setting::kStartPlayer, before.lookForPlayer, wanted.lookForPlayer);
  StoreChange(reg_, setting::kStartProxy, before.lookForProxy, wanted.lookForProxy);
  StoreChange(reg_, setting::kStartQuickStart, before.offerTutorial, wanted.offerTutorial);
  if (wanted.faceplate && wanted.faceplate != before.faceplate) faceplate_.Choose(*wanted.faceplate);
  return Read() == wanted ? StoreOutcome::Stored : StoreOutcome::Refused;
}

bool OptionsModel::StartsWithWindows() const {
  if (portable_) return false;  // what stands there starts another Sonaro
  for (const RootKey root : {RootKey::LocalMachine, RootKey::CurrentUser}) {
    const MainKeyScope scope(reg_, root);
    if (!reg_.GetData(systemkey::kRun, systemkey::kRunValue).empty()) return true;
  }
  return false;
}

// A user who may not write the machine's list is started from his own.
void OptionsModel::StoreStart(bool withWindows) {
  if (portable_) return;
  {
    // First, so that the two lists never both start the program.
    const MainKeyScope user(reg_, RootKey::CurrentUser);
    reg_.DeleteValue(systemkey::kRun, systemkey::kRunValue);
  }
  for (const RootKey root : {RootKey::LocalMachine, RootKey::CurrentUser}) {
    const MainKeyScope scope(reg_, root);
    if (!withWindows) {
      reg_.DeleteValue(systemkey::kRun, systemkey::kRunValue);
      continue;
    }
    reg_.CheckKeyIsThere(systemkey::kRun);
    reg_.SetData(systemkey::kRun, systemkey::kRunValue, program_ + kHiddenStart);
    if (!reg_.GetData(systemkey::kRun, systemkey::kRunValue).empty()) return;
  }
}

void OptionsModel::TryFaceplate(BuiltInFaceplate faceplate) {
  faceplate_.Try(faceplate);
  trying_ = true;
}

bool OptionsModel::EndTrying() {
  if (!trying_) return false;
  trying_ = false;
  faceplate_.Load();
  return true;
}

}  // namespace sonaro
