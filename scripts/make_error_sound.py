#!/usr/bin/env python3
"""Writes the sound of a wrong answer: two soft falling tones, 16-bit PCM mono."""

import math
import struct
import sys
import wave

RATE = 22050
TONES = [(392.0, 0.00, 0.22), (311.1, 0.13, 0.34)]  # frequency in hertz, start and length in seconds


def tone(frequency, seconds, length):
    if not 0 <= seconds < length:
        return 0.0
    attack = min(1.0, seconds / 0.008)
    release = min(1.0, (length - seconds) / 0.03)
    colour = math.sin(2 * math.pi * frequency * seconds) + 0.25 * math.sin(4 * math.pi * frequency * seconds)
    return attack * release * math.exp(-6 * seconds) * colour


def main():
    length = max(start + duration for _, start, duration in TONES)
    samples = [
        sum(tone(frequency, n / RATE - start, duration) for frequency, start, duration in TONES)
        for n in range(int(length * RATE))
    ]
    loudest = max(abs(sample) for sample in samples)
    with wave.open(sys.argv[1], "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(b"".join(struct.pack("<h", round(16000 * sample / loudest)) for sample in samples))


if __name__ == "__main__":
    main()
