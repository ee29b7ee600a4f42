// The identifier of this installation, sent with every request to the service. It says nothing about the user
// or the machine.
#pragma once

namespace sonaro {

class CReg;

// Makes "InstallId" at the first start: 32 random hexadecimal digits. A value that is there stays.
void EnsureInstallId(CReg& reg);

}  // namespace sonaro
