// High-contrast themes of the system win over the faceplate.
#pragma once

namespace sonaro {

class Faceplate;

// Makes the faceplate draw with the system's colours while a high-contrast theme is on, and with its own
// again after it. Forms do this when they open and when the system tells of a change.
void FollowHighContrast(Faceplate& faceplate);

}  // namespace sonaro
