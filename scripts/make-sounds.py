#!/usr/bin/env python3
"""Makes the two sounds of the built-in faceplates: a click for keys and a chime for notices.

Usage: scripts/make-sounds.py [FOLDER]   (default: data/depot)
The same bytes come out at every run: 16 bit, mono, 22050 samples a second.
"""

import math
import pathlib
import struct
import sys
import wave

RATE = 22050


def click():
    """A short, dry knock: a falling tone with a hard start, 28 ms."""
    length = int(RATE * 0.028)
    for i in range(length):
        t = i / RATE
        tone = math.sin(2 * math.pi * (1900 * t - 14000 * t * t)) + 0.35 * math.sin(2 * math.pi * 3300 * t)
        yield 0.30 * tone * math.exp(-t * 260) * min(1.0, i / 6) * (1 - i / length)


def bell(t, pitch):
    """One struck tone `t` seconds after the stroke: three partials, the higher the shorter."""
    if t < 0:
        return 0.0
    partials = ((1.0, 1.0, 3.6), (2.0, 0.34, 6.0), (3.01, 0.12, 10.0))
    attack = min(1.0, t / 0.006)
    return attack * sum(level * math.sin(2 * math.pi * pitch * ratio * t) * math.exp(-decay * t)
                        for ratio, level, decay in partials)


def chime():
    """Two tones, a falling third (E5, C5), the second 0.26 s after the first; 1.5 s."""
    length = int(RATE * 1.5)
    for i in range(length):
        t = i / RATE
        fade = min(1.0, (length - i) / (0.15 * RATE))
        yield 0.30 * fade * (bell(t, 659.26) + bell(t - 0.26, 523.25))


def save(path, samples):
    frames = b"".join(struct.pack("<h", round(max(-1.0, min(1.0, s)) * 32767)) for s in samples)
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames)


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "data/depot")
    save(folder / "xdf53.wav", click())
    save(folder / "gdf55.wav", chime())


if __name__ == "__main__":
    main()
