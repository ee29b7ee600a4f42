#include "tray/OptionsModel.h"

#include "base/Text.h"
#include "faceplate/Faceplate.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr const char* kHiddenStart = " WinStart=Yes";

AfterClose ReadAfterClose(const CReg& reg) {
  const std::string keep = reg.Setting(setting::kCloseToTray);
  if (keep.empty()) return AfterClose::Ask;
  return IsYes(keep) ? AfterClose::KeepInTray : AfterClose::Exit;
}

const char* AfterCloseText(AfterClose afterClose) {
  if (afterClose == AfterClose::Ask) return "";
  return afterClose == AfterClose::KeepInTray ? "Yes" : "No";
}

std::optional<BuiltInFaceplate> ReadFaceplate(const CReg& reg) {
  const std::string name = reg.Setting(setting::kFacePlateName);
  if (name.empty()) return BuiltInFaceplate::Graphite;
  for (const BuiltInFaceplate faceplate : {BuiltInFaceplate::Graphite, BuiltInFaceplate::Porcelain})
    if (EqualIgnoringCase(name, kBuiltInNames[static_cast<std::size_t>(faceplate)])) return faceplate;
  return std::nullopt;
}

bool Says(const CReg& reg, const char* name, std::string_view text) {
  return EqualIgnoringCase(reg.Setting(name), text);
}

}  // namespace

Options OptionsModel::Read() const {
  Options now;
  now.startWithWindows = StartsWithWindows();
  now.afterClose = ReadAfterClose(reg_);
  const std::string notify = reg_.Setting(setting::kSoundNotify);
  now.soundWithNotice = notify.empty() || EqualIgnoringCase(notify, "True");
  now.clickWithButtons = !Says(reg_, setting::kSoundClick, "False");
  now.useProxy = IsYes(reg_.Setting(setting::kProxyUse));
  now.proxy = {std::string(TrimBlanks(reg_.Setting(setting::kProxyAddress))),
               std::string(TrimBlanks(reg_.Setting(setting::kProxyPort)))};
  if (now.proxy.port.empty()) now.proxy.port = kUsualProxyPort;
  now.lookForPlayer = !Says(reg_, setting::kStartPlayer, "No");
  now.lookForProxy = !Says(reg_, setting::kStartProxy, "No");
  now.offerTutorial = !Says(reg_, setting::kStartQuickStart, "No");
  now.faceplate = ReadFaceplate(reg_);
  return now;
}

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
  if (wanted.afterClose != before.afterClose)
    reg_.SetSetting(setting::kCloseToTray, AfterCloseText(wanted.afterClose));
  StoreYesNo(setting::kSoundNotify, before.soundWithNotice, wanted.soundWithNotice, "True", "False");
  StoreYesNo(setting::kSoundClick, before.clickWithButtons, wanted.clickWithButtons, "True", "False");
  if (wanted.useProxy != before.useProxy || wanted.proxy != before.proxy)
    StoreProxy(reg_, wanted.useProxy, wanted.proxy);
  StoreYesNo(setting::kStartPlayer, before.lookForPlayer, wanted.lookForPlayer, "Yes", "No");
  StoreYesNo(setting::kStartProxy, before.lookForProxy, wanted.lookForProxy, "Yes", "No");
  StoreYesNo(setting::kStartQuickStart, before.offerTutorial, wanted.offerTutorial, "Yes", "No");
  if (wanted.faceplate && wanted.faceplate != before.faceplate) faceplate_.Choose(*wanted.faceplate);
  return Read() == wanted ? StoreOutcome::Stored : StoreOutcome::Refused;
}

void OptionsModel::StoreYesNo(const char* name, bool before, bool wanted, const char* yes, const char* no) {
  if (before != wanted) reg_.SetSetting(name, wanted ? yes : no);
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
