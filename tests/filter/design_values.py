#!/usr/bin/env python3
"""Writes design_values.h, filters designed by SciPy, which the tests hold the library's designs beside.

    apt-get install python3-scipy
    tests/filter/design_values.py

The tests need the header alone.
"""
import math
import pathlib

from scipy import signal

HEADER = pathlib.Path(__file__).with_name("design_values.h")


def window(kind, length):
    if kind == 1:  # with a parameter that depends on the length
        alpha = -((0.5 / math.cos(math.pi / (length - 1))) ** 2)
        return "general_cosine", [(alpha + 1) / 2, 0.5, -alpha / 2]
    return ["bartlett", None, "hamming", "hann", "boxcar"][kind]


def number(x):
    return float(x).hex()


def numbers(values):
    return "{" + ", ".join(number(v) for v in values) + "}"


def fir():
    """Of each design the taps before the centre and in it."""
    edges = {"lowpass": [0.13], "highpass": [0.31], "bandpass": [0.11, 0.27], "bandstop": [0.08, 0.4]}
    for band, cutoff in edges.items():
        for length in (9, 16):
            if length % 2 == 0 and band in ("highpass", "bandstop"):
                continue  # not designed there
            for kind in range(5):
                for scale in (0, 1):
                    taps = signal.firwin(length, cutoff, window=window(kind, length), pass_zero=band, scale=scale, fs=1)
                    low, high = cutoff[0], cutoff[-1]
                    yield f"    {{Band::{band}, {low}, {high}, {kind}, {scale}, {numbers(taps[:(length + 1) // 2])}, {length}}},"


def iir():
    """Zeros are at -1 or 1, all of them: of each design the poles, those above the real axis and on it."""
    for band in ("lowpass", "highpass"):
        for ripple in (0, 0.5, 3):
            for order in (1, 2, 5, 8, 12):
                for cutoff in (0.1, 0.37):
                    if ripple == 0:
                        design = signal.butter(order, 2 * cutoff, band, output="zpk")
                    else:
                        design = signal.cheby1(order, ripple, 2 * cutoff, band, output="zpk")
                    poles = [p for p in design[1] if p.imag >= -1e-14]
                    values = ", ".join(f"{{{number(p.real)}, {number(p.imag if p.imag > 1e-14 else 0)}}}" for p in poles)
                    yield f"    {{Band::{band}, {cutoff}, {ripple}, {order}, {{{values}}}}},"


def main():
    lines = [
        "// Filters designed by SciPy. Made by design_values.py.",
        "#pragma once",
        "",
        "#include <complex>",
        "#include <vector>",
        "",
        "namespace zors::test {",
        "",
        "enum class Band { lowpass, highpass, bandpass, bandstop };",
        "",
        "struct FirDesign {",
        "    Band band;",
        "    double low, high; // the same for one edge",
        "    int winType, doNormal;",
        "    std::vector<double> taps; // up to the centre",
        "    int tapsLen;",
        "};",
        "",
        "struct IirDesign {",
        "    Band band;",
        "    double rFreq, ripple; // 0 for Butterworth",
        "    int order;",
        "    std::vector<std::complex<double>> poles; // without those below the real axis",
        "};",
        "",
        "// clang-format off",
        "inline const FirDesign firDesigns[] = {",
        *fir(),
        "};",
        "",
        "inline const IirDesign iirDesigns[] = {",
        *iir(),
        "};",
        "// clang-format on",
        "",
        "} // namespace zors::test",
        "",
    ]
    HEADER.write_text("\n".join(lines))


main()
