// Numbers of the texts in strings.rc, read by the C++ and the resource compiler: only #define lines.
// One block of numbers for each folder of the source.
#ifndef SONARO_RESOURCES_IDS_H
#define SONARO_RESOURCES_IDS_H

#define IDI_PROGRAM 1

// app: 10000 to 10499

// playback: 10500 to 10999
#define IDS_NOPLAYER_TEXT 10500
#define IDS_NOPLAYER_BROWSE 10501
#define IDS_NOPLAYER_FIND_IT 10502
#define IDS_NOPLAYER_TEST_PROGRAM 10503
#define IDS_NOPLAYER_PLAYER_WEBSITE 10504
#define IDS_NOPLAYER_CLOSE 10505
#define IDS_NOPLAYER_OK 10506
#define IDS_NOPLAYER_CANT_FIND 10507
#define IDS_NOPLAYER_FILE_FILTER 10508

// mainwindow: 11000 to 11999

// schedule: 12000 to 12999
#define IDS_SCHED_OK 12000
#define IDS_SCHED_SHOWS_CAPTION 12001
#define IDS_SCHED_SHOW_ADDED 12002
#define IDS_SCHED_SHOW_REMOVED 12003

// net: 13000 to 13999

// tray: 14000 to 14999

// forms: 15000 to 15999

#endif
