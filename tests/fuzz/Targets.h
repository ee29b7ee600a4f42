// What reads bytes from outside, each as a function that takes any bytes and must neither break nor break its
// promise. With the preset "fuzz" each is a program of libFuzzer's; in every other build a test replays the
// corpus and mutations of it.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace sonaro {

struct FuzzTarget {
  const char* name;  // of its folder in corpus/
  void (*run)(std::string_view input);
};

void FuzzHttpResponse(std::string_view input);
void FuzzUpdateFile(std::string_view input);
void FuzzRedirect(std::string_view input);
void FuzzProxySettings(std::string_view input);
void FuzzPlaylist(std::string_view input);
void FuzzStationList(std::string_view input);
void FuzzTable(std::string_view input);
void FuzzEvents(std::string_view input);
void FuzzWhatIsNew(std::string_view input);
void FuzzSchedule(std::string_view input);
void FuzzPersonalStations(std::string_view input);
void FuzzExtraLinks(std::string_view input);
void FuzzGroups(std::string_view input);
void FuzzSettings(std::string_view input);
void FuzzCategories(std::string_view input);
void FuzzOutlines(std::string_view input);
void FuzzToolReaders(std::string_view input);

inline constexpr FuzzTarget kFuzzTargets[] = {{"http_response", FuzzHttpResponse},
                                              {"update_file", FuzzUpdateFile},
                                              {"redirect", FuzzRedirect},
                                              {"proxy_settings", FuzzProxySettings},
                                              {"playlist", FuzzPlaylist},
                                              {"station_list", FuzzStationList},
                                              {"table", FuzzTable},
                                              {"events", FuzzEvents},
                                              {"what_is_new", FuzzWhatIsNew},
                                              {"schedule", FuzzSchedule},
                                              {"personal_stations", FuzzPersonalStations},
                                              {"extra_links", FuzzExtraLinks},
                                              {"groups", FuzzGroups},
                                              {"settings", FuzzSettings},
                                              {"categories", FuzzCategories},
                                              {"outlines", FuzzOutlines},
                                              {"tool_readers", FuzzToolReaders}};

// Ends the process at a broken promise, which is what a fuzzer looks for.
inline void Require(bool promise, const char* what) {
  if (promise) return;
  std::fprintf(stderr, "broken promise: %s\n", what);
  std::abort();
}

}  // namespace sonaro
