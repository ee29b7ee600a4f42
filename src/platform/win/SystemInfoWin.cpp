#include "platform/win/PlatformWin.h"

#include <windows.h>

#include <iterator>

#include "base/Text.h"

namespace sonaro {
namespace {

// Reports the running system's true version because the manifest names it.
SystemVersion Version() {
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (!GetVersionExA(&version)) return {};
  return {true, version.dwPlatformId == VER_PLATFORM_WIN32_NT, version.dwMajorVersion,
          version.dwMinorVersion};
}

std::uint64_t MemoryBytes() {
  MEMORYSTATUSEX memory{};
  memory.dwLength = sizeof memory;
  return GlobalMemoryStatusEx(&memory) ? memory.ullTotalPhys : 0;
}

std::uint32_t ProcessorMegahertz() {
  DWORD megahertz = 0;
  DWORD size = sizeof megahertz;
  RegGetValueA(HKEY_LOCAL_MACHINE, "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0", "~MHz",
               RRF_RT_REG_DWORD, nullptr, &megahertz, &size);
  return megahertz;
}

void AddScreen(MachineFacts& facts) {
  const HDC screen = GetDC(nullptr);
  if (!screen) return;
  facts.screenWidth = GetDeviceCaps(screen, HORZRES);
  facts.screenHeight = GetDeviceCaps(screen, VERTRES);
  facts.bitsPerPixel = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
  ReleaseDC(nullptr, screen);
}

// The result of a function that counts its terminating zero and gives 0 on failure.
std::string Counted(const char* text, int length) {
  return length > 0 ? std::string(text, static_cast<std::size_t>(length) - 1) : std::string();
}

}  // namespace

MachineFacts SystemInfoWin::Machine() {
  MachineFacts facts;
  facts.version = Version();
  SYSTEM_INFO system{};
  GetSystemInfo(&system);
  facts.processorType = system.dwProcessorType;
  facts.processorCount = system.dwNumberOfProcessors;
  facts.memoryBytes = MemoryBytes();
  AddScreen(facts);
  facts.networkPresent = (GetSystemMetrics(SM_NETWORK) & 1) != 0;
  facts.processorMegahertz = ProcessorMegahertz();
  return facts;
}

std::string SystemInfoWin::FormattedEightAndAHalf() {
  char separator[8] = {};
  const int length =
      GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator, static_cast<int>(std::size(separator)));
  return '8' + Counted(separator, length) + '5';
}

std::string SystemInfoWin::FormattedSampleDate() {
  SYSTEMTIME sample{};
  sample.wYear = 2003;
  sample.wMonth = 12;
  sample.wDay = 25;
  char text[128] = {};
  const int length = GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &sample, nullptr, text,
                                    static_cast<int>(std::size(text)));
  return Counted(text, length);
}

std::string SystemInfoWin::ProfileString(const std::string& section, const std::string& key,
                                         const std::string& defaultText, const std::string& fileName) {
  char text[255] = {};
  const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultText.c_str(), text,
                                                static_cast<DWORD>(std::size(text)), fileName.c_str());
  return std::string(text, length);
}

// Comparing two keys byte by byte orders texts as the user's language does. Making a key costs as much as
// several comparisons, which pays when a list is sorted. A text that the system makes no key of is ordered by
// its folded bytes.
std::string SystemInfoWin::SortKey(std::string_view text) {
  // Twice as long as a name is; a longer one sorts by its beginning.
  constexpr std::size_t kMaxBytes = 512;
  const std::string_view start = TruncateUtf8(text, kMaxBytes);
  wchar_t wide[kMaxBytes];
  const int length = MultiByteToWideChar(CP_ACP, 0, start.data(), static_cast<int>(start.size()), wide,
                                         static_cast<int>(kMaxBytes));
  if (length <= 0) return {};
  char key[16 * kMaxBytes];  // the result is counted in bytes, its terminating zero with it
  const int bytes = LCMapStringEx(
      LOCALE_NAME_USER_DEFAULT,
      LCMAP_SORTKEY | LINGUISTIC_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH, wide, length,
      reinterpret_cast<wchar_t*>(key), static_cast<int>(sizeof key), nullptr, nullptr, 0);
  return bytes > 0 ? std::string(key, static_cast<std::size_t>(bytes) - 1) : FoldCase(start);
}

}  // namespace sonaro
