// The words of an update file, shared by the program that reads one and the tool that writes one.
#pragma once

#include <cstddef>
#include <string_view>

namespace sonaro::update {

// A section: "file::" + name, name + kSectionStart, the lines of the file, name + kSectionEnd.
inline constexpr std::string_view kFile = "file::";
inline constexpr std::string_view kSectionStart = " - start:sjhshkdjsdhjhsdsjhgfbvnjdsf";
inline constexpr std::string_view kSectionEnd = " - end:sjhshkdjsdhjhsdsjhgfbvnjdsf";
inline constexpr std::string_view kDate = "date::";        // a value and "::" follow
inline constexpr std::string_view kVersion = "version::";  // a value and a blank follow
// A whole number and "::" follow: when a signed update was published, in seconds since 1970. It grows with
// every update of one publisher, so that an older one is known although its signature is good.
inline constexpr std::string_view kSerial = "serial::";
// The section that carries changes of files instead of the files (UpdateChanges.h). It is never installed
// itself.
inline constexpr std::string_view kChanges = "changes.snr";
// What an installation says of itself when it can read changes: a service gives them to no other version.
inline constexpr std::string_view kVersionsReadingChanges[] = {"4.00.2"};
// The last line before the sentinel of a signed file: the SHA-256 of everything before the line in
// hexadecimal,
// "::", the publisher's signature of that digest in hexadecimal, "::".
inline constexpr std::string_view kSigned = "signed::";
// The last characters of every complete update file.
inline constexpr std::string_view kSentinel =
    "fgisdfugdfiougjpdfo ghdfoguh dfo;ingdfo;gnfdsogunfpdgujfdo;gufsdpogjdfgphdfngolfdgio;dfgho;djgdpsgjd";
static_assert(kSentinel.size() == 100);
// In the address of the answer "nothing is newer".
inline constexpr std::string_view kNothingNew = "noupdate.txt";

// What one update may bring: sections, those that are passed over included, and the bytes of all of them. A
// guide has some fifty files.
inline constexpr std::size_t kMaxSections = 250;
inline constexpr std::size_t kMaxBytes = std::size_t{128} * 1024 * 1024;

// True when an update may bring a file of this name: a plain name of a data file of the service's, and never
// one that the user made or that the program keeps for itself.
bool MayBringFile(std::string_view name);

// True when the last 100 characters of `body` are the mark of a complete update, letter case ignored.
bool EndsWithSentinel(std::string_view body);

}  // namespace sonaro::update
