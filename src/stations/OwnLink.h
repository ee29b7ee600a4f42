// What a link of the user's own may be: the one rule for the dialogs, for playlists that are taken in and
// out, and for the files that own links are kept in. An own link is a player link (PlayLink.h) whose address
// has a scheme, "http://" when none was given, and fits into its field; what is taken out so comes back the
// same.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

// Of a link text, in bytes; its address can be one less, since it can have the letter of its kind in front.
inline constexpr std::size_t kMaxOwnLink = 2000;

// The address as it is stored. Nothing for one that a player must not be given, or that is too long.
std::optional<std::string> OwnAddress(std::string_view address);

// The same for a whole link text, of which the letter of its kind stays.
std::optional<std::string> OwnLinkText(std::string_view linkText);

// The link text for the address in a dialog's field, which showed that of `before`: it is played as before,
// by the program for .asx files when there was none. "" for an empty field; nothing when the rule refuses it.
std::optional<std::string> OwnLinkFromField(std::string_view typed, std::string_view before);

// A link text as the user's files keep it: made so when the rule allows, otherwise only fit to stand in a
// field.
std::string CleanedLink(std::string_view linkText);

}  // namespace sonaro
