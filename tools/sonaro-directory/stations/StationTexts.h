// Turns a station into the record that is written: the texts of its sixteen fields.
#pragma once

#include <string>

#include "directory/Scrambling.h"
#include "directory/StationRecord.h"
#include "model/Directory.h"

namespace sonaro {

// Who plays the links: the program for .asx files, or the RealPlayer-compatible player.
enum class LinkPlayer { Asx, Real };

// What the list shows as the media type: "MP3", "AAC+", "Ogg Vorbis", "HLS", ...
std::string MediaTypeOf(const SourceStation& station);

// A sentence about the station: what it plays, in which language, from where, and how it is sent.
std::string DescriptionOf(const DirectoryStation& station);

// The record, links and web site scrambled.
StationRecord RecordOf(const DirectoryStation& station, LinkPlayer player,
                       const ScramblingAlphabets& alphabets);

}  // namespace sonaro
