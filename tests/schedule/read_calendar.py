#!/usr/bin/env python3
"""read_calendar.py WRITE_CALENDAR: the exported schedule, as a calendar program reads it.

Every item must come out with its name, note, address and alarm, and its repeat rule, expanded by the reader, must give
the days that the schedule means.
"""
import datetime
import os
import subprocess
import sys
import tempfile
import unittest

import icalendar
from dateutil.rrule import rrulestr

TODAY = datetime.date(2005, 5, 5)  # a Thursday
LONG = "Всю ночь напролёт, классика; и ещё чуть-чуть \\ джаза – " * 4

# name, action, date, time, weekday, kind, note; then what a reader must find: name, note, address, days from today on.
ITEMS = [
    (("Europa Plus", "NS17", "6/1/2005", "12:05 AM", "", "once", "kettle, tea; milk\vand C:\\cake"),
     ("Europa Plus", "kettle, tea; milk\nand C:\\cake", None, [27])),
    (("Gala|||Z|||Radio, Opéra>>>>>>opera.example/a;b?c=1,2", "WS4", "5/5/2005", "20:15", "", "ONCE", ""),
     ("Gala on Radio, Opéra", None, "http://opera.example/a;b?c=1,2", [0])),
    (("Every day", "N", "", "11:59 PM", "", "daily", ""), ("Every day", None, None, list(range(14)))),
    (("Some days", "N", "", "7:00", "", "daily|Mon=-1|Tue=0|Wed=0|Thr=-1|Fri=0|Sat=0|Sun=0|", "tab\there"),
     ("Some days", "tab\there", None, [0, 4, 7, 11])),
    (("ラジオ>>>>>>https://jp.example", "N", "", "3:30 PM", "wednesday", "weekly", ""),
     ("ラジオ", None, "https://jp.example", [6, 13])),
    ((LONG, "N", "", "0:00", "Sunday", "weekly", LONG), (LONG, LONG, None, [3, 10])),
    (("waits for its event", "N", "", "", "", "live", ""), None),
    (("no time", "N", "", "soon", "", "daily", ""), None),
    (("no day", "N", "", "8:00", "Someday", "weekly", ""), None),
    (("no day chosen", "N", "", "8:00", "", "daily|Mon=0|", ""), None),
]
TIMES = {"12:05 AM": (0, 5), "20:15": (20, 15), "11:59 PM": (23, 59), "7:00": (7, 0), "3:30 PM": (15, 30), "0:00": (0, 0)}


def days_of(event, days):
    """The days on which the event takes place, counted from today, among the next `days`."""
    start = event.decoded("DTSTART")
    if "RRULE" not in event:
        return [(start.date() - TODAY).days]
    rule = rrulestr(event["RRULE"].to_ical().decode(), dtstart=start)
    until = datetime.datetime.combine(TODAY + datetime.timedelta(days), datetime.time())
    return [(day.date() - TODAY).days for day in rule.between(start, until, inc=True)]


class Export(unittest.TestCase):
    def setUp(self):
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "Sched.snr"), "wb") as file:
                for item, _ in ITEMS:
                    line = "\t".join((item[0], item[1], item[2], item[3], item[4], item[5], item[6]))
                    file.write((line + "\r\n").encode())
            self.bytes = subprocess.run([PROGRAM, folder, TODAY.isoformat()], check=True, stdout=subprocess.PIPE).stdout

    def test_every_item_is_read_as_it_was_meant(self):
        calendar = icalendar.Calendar.from_ical(self.bytes)
        self.assertEqual(calendar["VERSION"], "2.0")
        events = calendar.walk("VEVENT")
        expected = [(item, meant) for item, meant in ITEMS if meant]
        self.assertEqual(len(events), len(expected))
        for event, (item, (name, note, address, days)) in zip(events, expected):
            with self.subTest(name):
                self.assertEqual(event.errors, [])
                self.assertEqual(str(event["SUMMARY"]), name)
                self.assertEqual(str(event["DESCRIPTION"]) if "DESCRIPTION" in event else None, note)
                self.assertEqual(str(event["URL"]) if "URL" in event else None, address)
                start = event.decoded("DTSTART")
                self.assertIsNone(start.tzinfo)  # the user's wall clock, wherever he is
                self.assertEqual((start.hour, start.minute), TIMES[item[3]])
                self.assertEqual(days_of(event, 14), days)
                alarm, = event.walk("VALARM")
                self.assertEqual(alarm["ACTION"], "DISPLAY")
                self.assertEqual(alarm.decoded("TRIGGER"), datetime.timedelta(0))
        self.assertEqual(len({str(event["UID"]) for event in events}), len(events))

    def test_lines_are_folded_and_nothing_else_ends_them(self):
        lines = self.bytes.split(b"\r\n")
        self.assertEqual(lines.pop(), b"")
        for line in lines:
            self.assertLessEqual(len(line), 75)
            self.assertNotRegex(line, rb"[\r\n\x00-\x08\x0b\x0c]")
            line.decode()  # no character is cut in two


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
