// The number of the program's icon: only #define lines, the resource compiler reads them too.
#ifndef SONARO_RESOURCES_ICON_H
#define SONARO_RESOURCES_ICON_H

#define IDI_PROGRAM 1

#endif
