#!/usr/bin/env python3
"""Writes response_values.json, what filters designed by SciPy do to each frequency, which the test of wav_filter holds
its results beside.

    apt-get install python3-scipy
    tests/examples/response_values.py

The test needs the values alone: of each design the options, the rate, the frequencies, the gains as complex numbers
and the group delays in milliseconds.
"""
import json
import math
import pathlib

import numpy
from scipy import signal

VALUES = pathlib.Path(__file__).with_suffix(".json")
RATE = 8000
FREQUENCIES = [10, 40, 90, 150, 220, 290, 300, 310, 420, 500, 510, 600, 750, 880, 920, 1000, 1010, 1080, 1120, 1300,
               1480, 1500, 1700, 1990, 2000, 2100, 2500, 3000, 3390, 3400, 3410, 3700, 3900]


def fir(band, edges, taps):
    """Without the delay. The default is a transition of a quarter of the narrowest band, which takes 3.3 / width."""
    if not taps:
        bounds = [0, *edges, RATE / 2]
        taps = 2 * math.ceil(4 * 3.3 * RATE / min(b - a for a, b in zip(bounds, bounds[1:])) / 2) + 1
    h = signal.firwin(taps, edges, window="hamming", pass_zero=band, fs=RATE)
    return lambda f: signal.freqz(h, worN=f, fs=RATE)[1] * numpy.exp(2j * numpy.pi * f / RATE * (taps // 2))


def iir(band, edges, order, ripple):
    if band == "bandpass":
        high, low = iir("highpass", edges[:1], order, ripple), iir("lowpass", edges[1:], order, ripple)
        return lambda f: high(f) * low(f)
    if not ripple:
        sections, gain = signal.butter(order, edges[0], band, output="sos", fs=RATE), 1
    else:  # a gain of 1 at 0 Hz, or at half the rate, for even orders too
        sections = signal.cheby1(order, ripple, edges[0], band, output="sos", fs=RATE)
        gain = 10 ** (ripple / 20) if order % 2 == 0 else 1
    return lambda f: gain * signal.sosfreqz(sections, worN=f, fs=RATE)[1]


def designs():
    for band, edges, taps in (
        ("lowpass", [1000], None),
        ("lowpass", [1000], 101),
        ("highpass", [500.5], 63),
        ("bandpass", [300, 3400], None),
        ("bandpass", [300, 3400], 5),
        ("bandstop", [900, 1100], 301),
    ):
        yield band, edges, [] if taps is None else ["--fir", str(taps)], fir(band, edges, taps)
    for band, edges, order, ripple in (
        ("lowpass", [1000], 1, None),
        ("lowpass", [150], 5, None),
        ("lowpass", [130], 8, None),  # hardly more than the program takes
        ("lowpass", [1500], 12, 0.5),
        ("highpass", [300], 6, None),
        ("highpass", [2000], 7, 3),
        ("bandpass", [300, 3400], 4, None),
        ("bandpass", [500, 1500], 6, 1),
    ):
        options = ["--iir", str(order)] + ([] if ripple is None else ["--ripple", str(ripple)])
        yield band, edges, options, iir(band, edges, order, ripple)


def values():
    frequencies, near = numpy.array(FREQUENCIES, float), 0.01
    for band, edges, options, response in designs():
        gains = response(frequencies)
        turn = response(frequencies + near) / response(frequencies - near)
        delays = -numpy.angle(turn) / (4 * numpy.pi * near)
        yield {
            "options": [f"--{band}", ":".join(map(str, edges)), *options],
            "gains": [[round(z.real, 12) + 0.0, round(z.imag, 12) + 0.0] for z in gains],
            "delays": [round(1000 * d, 6) + 0.0 for d in delays],
        }


def main():
    lines = ",\n".join(json.dumps(value) for value in values())
    VALUES.write_text(f'{{"rate": {RATE}, "frequencies": {FREQUENCIES}, "designs": [\n{lines}\n]}}\n')


main()
