// Finds the HTTP proxy that a browser on this machine is set to use. Reads only; whatever cannot be read
// counts as "no proxy".
#pragma once

#include <string>

namespace sonaro {

class CReg;
class Files;

// Both give "host:port" (or the host alone, if that is what is set), or "" for none.
std::string DetectIeProxy(CReg& reg);
std::string DetectNetscapeProxy(const CReg& reg, Files& files);

}  // namespace sonaro
