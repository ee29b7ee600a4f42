// Changes instead of whole files: a weekly update touches few of a guide's lines, and need not carry the
// rest.
//
// The section "changes.snr" of an update has for each file a line ">" name, tab, the SHA-256 of the file that
// it starts from, tab, the SHA-256 of what comes out; then its steps, one on a line: "KEEP SKIP TEXT", the
// bytes of the old file to keep, the bytes to leave out after them, and what to put in, with "\n" for a line
// end (CR LF), "\r" and "\l" for a lone CR and LF, "\\" for a backslash. What the steps do not reach is kept.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Sliced.h"

namespace sonaro {

class DataFolder;
struct UpdateContents;

// Works through the steps, lines as above. Nothing when a line is none of these, when a step reaches beyond
// the end of `before`, or when more than `maxBytes` come out. The work grows with the lengths only.
std::optional<std::string> ApplySteps(std::string_view before, std::string_view steps, std::size_t maxBytes);

// A text as a step carries it.
std::string EscapedForStep(std::string_view text);

// Adds the files that contents.changes lead to to contents.files, whole, made of those in the data folder,
// and empties the changes. False when a digest does not fit, a file is missing or a name may not come: then
// nothing of the contents may be used, and the whole guide has to be asked for.
Sliced<bool> ExpandChanges(DataFolder& data, UpdateContents& contents);

}  // namespace sonaro
