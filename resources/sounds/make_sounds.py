#!/usr/bin/env python3
"""Makes the short sounds of the program: 22050 Hz, mono, 8 bit, each under 12 kB. Run it in any folder."""

import math
import wave
from pathlib import Path

RATE = 22050
HERE = Path(__file__).resolve().parent

# name -> notes of (start in seconds, length, frequency at the start, frequency at the end, loudness)
SOUNDS = {
    "save": [(0.00, 0.14, 659.3, 659.3, 0.45), (0.11, 0.28, 987.8, 987.8, 0.45)],
    "Add": [(0.00, 0.10, 523.3, 523.3, 0.40), (0.08, 0.10, 659.3, 659.3, 0.40), (0.16, 0.24, 784.0, 784.0, 0.40)],
    "Edit": [(0.00, 0.22, 740.0, 880.0, 0.40)],
    "Cancel": [(0.00, 0.12, 587.3, 587.3, 0.40), (0.10, 0.25, 440.0, 440.0, 0.40)],
    "Del": [(0.00, 0.30, 392.0, 196.0, 0.50)],
}


def tone(time, length, first, last):
    """One note, a soft sine with a little of its octave, that swells fast and dies away."""
    sweep = first * time + (last - first) * time * time / (2 * length)
    envelope = min(1.0, time / 0.008) * math.exp(-3.5 * time / length) * min(1.0, (length - time) / 0.02)
    return envelope * (math.sin(2 * math.pi * sweep) + 0.2 * math.sin(4 * math.pi * sweep))


def render(notes):
    end = max(start + length for start, length, *_ in notes)
    frames = bytearray()
    for index in range(int(end * RATE)):
        now = index / RATE
        value = sum(loudness * tone(now - start, length, first, last)
                    for start, length, first, last, loudness in notes if start <= now < start + length)
        frames.append(max(0, min(255, round(128 + 127 * value / 1.2))))
    return bytes(frames)


def main():
    for name, notes in SOUNDS.items():
        with wave.open(str(HERE / f"{name}.wav"), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(1)
            file.setframerate(RATE)
            file.writeframes(render(notes))


if __name__ == "__main__":
    main()
