"""Measures what the filter does to made and real recordings.   usage: wav_filter_test.py PROGRAM RECORDING"""
import array
import cmath
import json
import math
import operator
import os
import pathlib
import pty
import random
import resource
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM, RECORDING = sys.argv[1], pathlib.Path(sys.argv[2])
RESPONSES = json.loads(pathlib.Path(__file__).with_name("response_values.json").read_text())

# What the low-pass filter of a rate conversion is designed for.
PASS_EDGE = 0.91  # of the lower Nyquist frequency
RIPPLE = 10 ** (-100 / 20)  # of the gain in the pass band, and the gain in the stop band

ENCODINGS = {"16": (1, 16, "h"), "24": (1, 24, None), "32": (1, 32, "i"), "float": (3, 32, "f"), "double": (3, 64, "d")}
GUID_TAIL = bytes.fromhex("000000001000800000aa00389b71")  # of a format in the extensible header


def header(rate, channels, encoding, frames, extensible=False):
    tag, bits, _ = ENCODINGS[encoding]
    align = channels * bits // 8
    form = struct.pack("<HHIIHH", 0xFFFE if extensible else tag, channels, rate, rate * align, align, bits)
    if extensible:
        form += struct.pack("<HHIH", 22, bits, 0, tag) + GUID_TAIL
    chunks = struct.pack("<4sI", b"fmt ", len(form)) + form + struct.pack("<4sI", b"data", frames * align)
    return struct.pack("<4sI4s", b"RIFF", 4 + len(chunks) + frames * align, b"WAVE") + chunks


def write_wav(path, rate, encoding, *channels, extensible=False):
    flat = [0] * (len(channels) * len(channels[0]))
    for i, samples in enumerate(channels):
        flat[i :: len(channels)] = samples
    code = ENCODINGS[encoding][2]
    data = array.array(code, flat).tobytes() if code else b"".join(s.to_bytes(3, "little", signed=True) for s in flat)
    path.write_bytes(header(rate, len(channels), encoding, len(channels[0]), extensible) + data)


def read_wav(path):
    """Rate, encoding, whether the header is extensible, and the samples of each channel."""
    whole, at, chunks = path.read_bytes(), 12, {}
    while at < len(whole):
        name, size = struct.unpack_from("<4sI", whole, at)
        chunks[name] = whole[at + 8 : at + 8 + size]
        assert len(chunks[name]) == size
        at += 8 + size + size % 2
    form, data = chunks[b"fmt "], chunks[b"data"]
    tag, channels, rate, _, align, bits = struct.unpack_from("<HHIIHH", form)
    extensible = tag == 0xFFFE
    tag = struct.unpack_from("<H", form, 24)[0] if extensible else tag
    encoding, code = next((name, e[2]) for name, e in ENCODINGS.items() if e[:2] == (tag, bits))
    assert align == channels * bits // 8
    if code:
        flat = array.array(code, data).tolist()
    else:
        flat = [int.from_bytes(data[i : i + 3], "little", signed=True) for i in range(0, len(data), 3)]
    return rate, encoding, extensible, [flat[i::channels] for i in range(channels)]


def tones(rate, seconds, frequencies):
    """Sines of whole hertz, of amplitude 1 / their number each."""
    count = len(frequencies)

    def sine(frequency, phase):
        return [math.sin(2 * math.pi * (frequency * n % rate) / rate + phase) / count for n in range(rate)]

    return list(map(math.fsum, zip(*map(sine, frequencies, range(count))))) * seconds


def component(samples, rate, frequency):
    """The complex amplitude of a sine of whole hertz, over the second that begins half a second into the samples."""
    begin = rate // 2
    turn = [cmath.exp(-2j * math.pi * n / rate) for n in range(rate)]
    steps = (frequency * n % rate for n in range(begin, begin + rate))
    return sum(map(operator.mul, samples[begin : begin + rate], map(turn.__getitem__, steps))) * 2 / rate


def rms(samples):
    return math.sqrt(math.fsum(s * s for s in samples) / len(samples))


def decibels(ratio):
    return 20 * math.log10(ratio)


def frames_after(frames, up, down):
    return (2 * frames * up + down) // (2 * down)


class WavFilter(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.source, self.result = self.folder / "source.wav", self.folder / "result.wav"

    def run_filter(self, *arguments, **options):
        command = [PROGRAM, *map(str, arguments)]
        return subprocess.run(command, capture_output=True, text=True, timeout=300, **options)

    def filtered(self, option, value, rate, encoding, *channels, said="", more=()):
        """Rate and channels of the result."""
        write_wav(self.source, rate, encoding, *channels)
        result = self.run_filter(option, value, *more, self.source, self.result)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", said))
        rate, written, _, filtered = read_wav(self.result)
        self.assertEqual((written, len(filtered)), (encoding, len(channels)))
        self.assertEqual(sorted(p.name for p in self.folder.glob("*.wav*")), ["result.wav", "source.wav"])
        return rate, filtered

    def taps(self, text):
        path = self.folder / "taps.txt"
        path.write_text(text)
        return path

    # Rate conversion

    def test_pass_band_and_delay(self):
        for rate, other in (44100, 48000), (48000, 44100), (360, 250), (250, 360):
            with self.subTest(rate=rate, other=other):
                edge = math.floor(PASS_EDGE * min(rate, other) / 2)
                frequencies = [max(1, round(edge * k / 40)) for k in range(1, 41)]
                source = tones(rate, 2, frequencies)
                got_rate, (samples,) = self.filtered("--to-rate", other, rate, "double", source)
                self.assertEqual((got_rate, len(samples)), (other, 2 * other))
                gains = [component(samples, other, f) / component(source, rate, f) for f in frequencies]
                self.assertLess(max(abs(gain - 1) for gain in gains), RIPPLE)
                ripple = max(abs(decibels(abs(gain))) for gain in gains)
                delay = max(abs(cmath.phase(gain)) / (2 * math.pi * f) * other for gain, f in zip(gains, frequencies))
                print(f"{rate} -> {other} Hz: ripple {ripple:.6f} dB up to {edge} Hz, delay below {delay:.1e} samples")
                self.assertLess(delay, 1e-4)

    def test_stop_band(self):
        for rate, other in (48000, 44100), (360, 250), (96000, 8000):
            with self.subTest("aliases", rate=rate, other=other):
                nyquist, top = other // 2, rate // 2 - 1
                frequencies = [nyquist + max(1, round((top - nyquist) * k**2 / 400)) for k in range(1, 21)]
                source = tones(rate, 2, frequencies)
                _, (samples,) = self.filtered("--to-rate", other, rate, "double", source)
                # 1/20 is each tone's amplitude. Tones that fall on one another are left out.
                aliases = [abs((f + nyquist) % other - nyquist) for f in frequencies]
                worst = max(abs(component(samples, other, a)) * 20 for a in aliases if aliases.count(a) == 1)
                print(f"{rate} -> {other} Hz: aliases {decibels(worst):.1f} dB")
                self.assertLess(worst, RIPPLE)
                self.assertLess(rms(samples[other // 2 : -other // 2]), RIPPLE * rms(source))
        for rate, other in (44100, 48000), (250, 360):
            with self.subTest("images", rate=rate, other=other):
                frequencies = [math.floor((rate - other / 2) + (other - rate) / 2 * k / 20) for k in range(1, 20)]
                source = tones(rate, 2, frequencies)
                _, (samples,) = self.filtered("--to-rate", other, rate, "double", source)
                worst = max(abs(component(samples, other, rate - f)) * len(frequencies) for f in frequencies)
                print(f"{rate} -> {other} Hz: images {decibels(worst):.1f} dB")
                self.assertLess(worst, RIPPLE)

    def test_sweep_there_and_back(self):
        for rate, other, ratio, back in (44100, 48000, "160/147", "147/160"), (360, 250, "50/72", "36/25"):
            with self.subTest(rate=rate, other=other):
                top, seconds = PASS_EDGE * min(rate, other) / 2, 4

                def sweep(at):  # from 0 Hz to the edge of the pass band
                    return [math.sin(math.pi * top / seconds * (n / at) ** 2) for n in range(seconds * at)]

                source = sweep(rate)
                _, (there,) = self.filtered("--rate", ratio, rate, "double", source)
                got_rate, (again,) = self.filtered("--rate", back, other, "double", there)
                self.assertEqual(got_rate, rate)
                # Ripple and images, each way.
                for ways, at, got, wanted in (1, other, there, sweep(other)), (2, rate, again, source):
                    self.assertEqual(len(got), len(wanted))
                    inner = slice(at // 2, -at // 2)
                    error = max(map(abs, map(operator.sub, got[inner], wanted[inner])))
                    print(f"sweep {rate} -> {other} Hz, at {at} Hz: largest error {decibels(error):.1f} dB")
                    self.assertLess(error, ways * 2 * RIPPLE)

    def test_frame_counts(self):
        for up, down in (160, 147), (147, 160), (1, 4), (3, 2), (25, 36), (1, 1), (441, 80):
            for frames in 0, 1, 2, down, 5 * down - 1, 5 * down + 1, 1000:
                with self.subTest(up=up, down=down, frames=frames):
                    ramp = list(range(frames))
                    rate, (samples,) = self.filtered("--rate", f"{2 * up}/{2 * down}", 100 * down, "16", ramp)
                    self.assertEqual((rate, len(samples)), (100 * up, frames_after(frames, up, down)))
                    if up == down:
                        self.assertEqual(samples, ramp)

    def test_blocks_do_not_show(self):
        # The more channels the shorter are the blocks, and the bits stay the same.
        noise = random.Random(1)
        for encoding, amplitude in ("16", 20_000), ("float", 0.5):
            samples = [noise.uniform(-amplitude, amplitude) for _ in range(100_000)]
            if encoding == "16":
                samples = list(map(round, samples))
            _, (alone,) = self.filtered("--rate", "3/4", 8000, encoding, samples)
            other = samples[1:] + samples[:1]
            _, many = self.filtered("--rate", "3/4", 8000, encoding, other, samples, *[other] * 4)
            self.assertEqual(len(alone), 75_000)
            self.assertTrue(many[1] == alone)
        # The whole is the sum of its parts, by overlap-save too.
        parts = samples[:70_000] + [0] * 30_000, [0] * 70_000 + samples[70_000:]
        taps = self.taps(" ".join(str(0.99**k / 100) for k in range(200)))
        for option, value in ("--rate", "3/4"), ("--taps", taps):
            whole, first, second = (self.filtered(option, value, 8000, "double", s)[1][0] for s in (samples, *parts))
            self.assertLess(max(abs(w - a - b) for w, a, b in zip(whole, first, second)), 1e-13)

    # Bands

    def test_bands_have_the_response_of_their_design(self):
        rate, frequencies = RESPONSES["rate"], RESPONSES["frequencies"]
        source = tones(rate, 2, frequencies)
        sent = [component(source, rate, f) for f in frequencies]
        for design in RESPONSES["designs"]:
            option, value, *more = design["options"]
            with self.subTest(" ".join(design["options"])):
                got_rate, (samples,) = self.filtered(option, value, rate, "double", source, more=more)
                self.assertEqual((got_rate, len(samples)), (rate, len(source)))
                gains = [component(samples, rate, f) / s for f, s in zip(frequencies, sent)]
                error = max(abs(g - complex(*w)) for g, w in zip(gains, design["gains"]))
                print(f"{' '.join(design['options'])}: response within {error:.1e}")
                self.assertLess(error, 1e-6 if value == "130" else 1e-10)

    def test_bands_of_every_encoding(self):
        noise = random.Random(5)
        full = [noise.uniform(-0.5, 0.5) for _ in range(20_000)]
        for options in (["--fir", "101"], ["--iir", "8"]):
            whole = self.filtered("--lowpass", "1000.5", 8000, "double", full, more=options)[1][0]
            for encoding, scale in ("16", 2**15), ("24", 2**23), ("32", 2**31), ("float", 1):
                with self.subTest(encoding=encoding, options=options):
                    samples = [s * scale if scale == 1 else round(s * scale) for s in full]
                    other = samples[1:] + samples[:1]
                    rows = self.filtered("--lowpass", "1000.5", 8000, encoding, other, samples, *[other] * 4,
                                         more=options)[1]
                    # The result's rounding, the source's, and for 16 bits that of single precision.
                    most = 2**-23 if scale == 1 else 1.7 / scale
                    self.assertLess(max(abs(g / scale - w) for g, w in zip(rows[1], whole)), most)
                    self.assertEqual(rows[0][:10_000], rows[5][:10_000])

    def test_bands_of_short_files(self):
        for options in ([], ["--fir", "1001"], ["--iir", "11"]):
            for frames in 0, 1, 7:
                _, (samples,) = self.filtered("--highpass", "1000", 8000, "float", [0.5] * frames, more=options)
                self.assertEqual(len(samples), frames)
        # A filter without delay turned about a click is itself.
        click = [0.0] * 50 + [1.0] + [0.0] * 50
        _, (taps,) = self.filtered("--bandpass", "1e3:+1500", 8000, "double", click, more=["--fir", "61"])
        self.assertLess(max(abs(a - b) for a, b in zip(taps, reversed(taps))), 1e-15)
        self.assertEqual(max(taps), taps[50])

    # Pictures

    def picture(self, *options):
        """What gnuplot is sent, and its data blocks as lists of numbers."""
        sent = self.folder / "commands"
        spy = self.folder / "gnuplot"
        spy.write_text(f"#!/bin/sh\ntee '{sent}' | {shutil.which('gnuplot')} \"$@\"\n")
        spy.chmod(0o755)
        write_wav(self.source, RESPONSES["rate"], "16", [0] * 10)
        png = self.folder / "it's a picture.png"
        path = f"{self.folder}:{os.environ['PATH']}"
        result = self.run_filter(*options, "--response", png, self.source, self.result, env={"PATH": path})
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        self.assertEqual(png.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(struct.unpack(">II", png.read_bytes()[16:24]), (1600, 1360))
        self.assertTrue(self.result.exists())
        text = sent.read_text()
        blocks = {}
        for name in "level", "phase", "delay":
            lines = text.split(f"${name} << end\n")[1].split("\nend\n")[0].splitlines()
            blocks[name] = [tuple(map(float, line.split())) for line in lines if line]
        return text, blocks

    def test_response_is_drawn(self):
        for design in RESPONSES["designs"]:
            with self.subTest(" ".join(design["options"])):
                text, blocks = self.picture(*design["options"])
                self.assertIn(design["options"][0][2:5], text)
                compared = 0
                for frequency, gain, delay in zip(RESPONSES["frequencies"], design["gains"], design["delays"]):
                    gain = complex(*gain)
                    if abs(gain) < 0.01:
                        continue
                    compared += 1
                    # Of the frequencies drawn some are a little higher, some lower.
                    near = {name: [v for f, v in blocks[name] if abs(f / frequency - 1) < 0.008] for name in blocks}
                    for values, wanted, most in (near["level"], decibels(abs(gain)), 0.02), \
                            (near["delay"], delay, 0.002 * abs(delay) + 1e-5):
                        self.assertLess(min(values) - most, wanted)
                        self.assertLess(wanted, max(values) + most)
                    turned = [(math.degrees(cmath.phase(gain)) - phase + 180) % 360 - 180 for phase in near["phase"]]
                    self.assertLess(min(map(abs, turned)), 2)
                self.assertGreaterEqual(compared, 5)

    def test_response_of_taps(self):
        text, blocks = self.picture("--taps", self.taps("0 0 0 -0.5 0 0"))
        self.assertIn("taps.txt, 6 taps", text)
        for name, slope, offset in ("level", 0, decibels(0.5)), ("delay", 0, 3000 / RESPONSES["rate"]):
            self.assertLess(max(abs(value - offset) for _, value in blocks[name]), 1e-6)
        for frequency, phase in blocks["phase"]:
            turned = phase - 180 + 360 * 3 * frequency / RESPONSES["rate"]
            self.assertLess(abs((turned + 180) % 360 - 180), 0.002)
        _, blocks = self.picture("--taps", self.taps("1e-12"))
        self.assertLess(max(abs(level + 240) for _, level in blocks["level"]), 1e-6)
        self.assertGreater(len(blocks["delay"]), 1000)

    # Taps from a file

    def test_every_format_and_channel_count_stays(self):
        noise = random.Random(2)
        for encoding, (tag, bits, _) in ENCODINGS.items():
            for channels in 1, 2, 6:
                with self.subTest(encoding=encoding, channels=channels):
                    frames = 70_000 // channels
                    # Integers from one end of the range to the other, floats beyond it.
                    most = 2 ** (bits - 1) if tag == 1 else 2**24
                    rows = [[noise.randrange(-most, most) for _ in range(frames)] for _ in range(channels)]
                    rows[-1][:2] = -most, most - 1
                    if tag == 3:
                        rows = [[s / 2**20 for s in row] for row in rows]
                    taps = self.taps("# three samples later\n0 0 +0.0\n\n 1.0e0# h[3]\n")
                    rate, filtered = self.filtered("--taps", taps, 44100, encoding, *rows)
                    self.assertEqual(rate, 44100)
                    self.assertTrue(filtered == [[0] * 3 + row[:-3] for row in rows])
        write_wav(self.source, 8000, "24", *[range(k, k + 50) for k in range(6)], extensible=True)
        self.assertEqual(self.run_filter("--taps", taps, self.source, self.result).returncode, 0)
        rate, encoding, extensible, filtered = read_wav(self.result)
        self.assertEqual((rate, encoding, extensible, filtered[5][:5]), (8000, "24", True, [0, 0, 0, 5, 6]))

    def test_rounding(self):
        noise = random.Random(3)
        for encoding in "16", "24", "32":
            with self.subTest(encoding):
                most = 2 ** (ENCODINGS[encoding][1] - 1)
                samples = [noise.randrange(-most, most) for _ in range(5000)]
                _, (mean,) = self.filtered("--taps", self.taps("0.25\n" * 4), 8000, encoding, samples)
                padded = [0] * 3 + samples
                self.assertEqual(mean, [round(sum(padded[n : n + 4]) / 4) for n in range(len(samples))])

                exact = [round(1.5 * s) for s in samples + [2 * most // 3, -(2 * most // 3), -most, most - 1]]
                beyond = sum(not -most <= s < most for s in exact)
                said = f"wav_filter: {beyond} samples beyond full scale were clipped\n"
                samples += [2 * most // 3, -(2 * most // 3), -most, most - 1]
                _, (loud,) = self.filtered("--taps", self.taps("1.5"), 8000, encoding, samples, said=said)
                self.assertEqual(loud, [min(max(s, -most), most - 1) for s in exact])
        _, (loud,) = self.filtered("--taps", self.taps("8"), 8000, "float", [0.5, -0.75])
        self.assertEqual(loud, [4, -6])

    # A real recording

    def test_electrocardiogram(self):
        rate, _, _, (original,) = read_wav(RECORDING)
        # What falls below 110 Hz, by a sinc under Blackman's window.
        low_pass = self.folder / "low pass"
        with low_pass.open("w") as file:
            for k in range(-200, 201):
                weight = 0.42 + 0.5 * math.cos(math.pi * k / 201) + 0.08 * math.cos(2 * math.pi * k / 201)
                print(weight * (math.sin(220 * math.pi * k / rate) / (math.pi * k) if k else 220 / rate), file=file)

        full_scale = 2**15
        for encoding, scale, most in ("16", 1, 0.4), ("double", 1 / full_scale, 1e-3):
            source = [s * scale for s in original]
            got_rate, (lower,) = self.filtered("--to-rate", 250, rate, encoding, source)
            self.assertEqual((got_rate, len(lower)), (250, frames_after(len(source), 25, 36)))
            _, (again,) = self.filtered("--to-rate", rate, 250, encoding, lower)
            self.assertEqual(len(again), len(source))
            lost = [(a - s) / scale for a, s in zip(again, source)]
            _, (in_band,) = self.filtered("--taps", low_pass, rate, "double", [s / full_scale for s in lost])
            # Without a second at each end, where the recording begins and ends with a step.
            whole, inner = rms(lost[rate:-rate]), rms(in_band[2 * rate : -rate]) * full_scale
            print(f"electrocardiogram, 360 -> 250 -> 360 Hz, {encoding}: rms {rms(original):.1f} units, "
                  f"difference {whole:.3f}, below 110 Hz {inner:.6f}")
            self.assertLess(inner, most)
            self.assertLess(whole, 2)

    # Long files

    def sparse(self, name, seconds):
        path = self.folder / name
        with path.open("wb") as file:
            file.write(header(8000, 2, "16", 8000 * seconds))
            file.truncate(file.tell() + 8000 * seconds * 4)
        return path

    def test_memory_does_not_grow_with_the_file(self):
        # By a small process of its own: a child begins with the peak of its parent.
        script = ("import resource, subprocess, sys; subprocess.run(sys.argv[1:], check=True); "
                  "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)")
        peaks = []
        for seconds in 10, 1200:
            path = self.sparse("long.wav", seconds)
            command = [sys.executable, "-S", "-c", script, PROGRAM, "--rate", "1/2", path, self.result]
            peaks.append(int(subprocess.run(command, capture_output=True, check=True, timeout=300).stdout))
        self.assertEqual(self.result.stat().st_size - 44, 4000 * 1200 * 4)
        print(f"peak memory: {peaks[0]} KiB for 10 s, {peaks[1]} KiB for 20 minutes")
        self.assertLess(peaks[1] - peaks[0], 8192)  # the long file has 37,500

    def test_interrupted(self):
        path = self.sparse("hours.wav", 90_000)
        command = [PROGRAM, "--rate", "1/2", path, self.result]
        with subprocess.Popen(command, stderr=subprocess.PIPE, text=True) as process:
            while process.poll() is None and len(list(self.folder.iterdir())) == 1:
                time.sleep(0.001)
            process.send_signal(signal.SIGINT)
            self.assertEqual(process.communicate()[1], "wav_filter: interrupted\n")
        self.assertEqual((process.returncode, list(self.folder.iterdir())), (1, [path]))
        self.assertRegex(self.run_filter("--rate", "2/1", path, self.result).stderr, "too long for a WAV file")
        self.assertEqual(list(self.folder.iterdir()), [path])

    def test_progress_on_a_terminal(self):
        terminal, end = pty.openpty()
        subprocess.run([PROGRAM, "--rate", "2/1", self.sparse("short.wav", 60), self.result], stderr=end, check=True)
        os.close(end)
        said = os.read(terminal, 4096)
        os.close(terminal)
        self.assertRegex(said, rb"^(\r *\d+ %){5,}\r *100 %\r +\r$")

    # Mistakes

    def check_failure(self, message, *arguments, **options):
        before = {p: p.read_bytes() for p in self.folder.iterdir() if p.is_file()}
        result = self.run_filter(*arguments, **options)
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertRegex(result.stderr, f"^wav_filter: .*{message}.*\n$")
        self.assertEqual({p: p.read_bytes() for p in self.folder.iterdir() if p.is_file()}, before)

    def test_bad_input(self):
        write_wav(self.source, 8000, "16", list(range(400)))
        self.result.write_text("what was there before")
        whole = self.source.read_bytes()
        one_byte_each = bytearray(whole)
        struct.pack_into("<IHH", one_byte_each, 28, 8000, 1, 8)
        cases = {
            "empty": (b"", "empty"),
            "text": (b"A recording, or so they said.\n" * 9, "not a readable WAV file"),
            "cut": (whole[:-101], "truncated"),
            "bytes": (one_byte_each, "16, 24 or 32 bits"),
            "missing": (None, "no such"),
        }
        for name, (content, message) in cases.items():
            with self.subTest(name):
                path = self.folder / name
                if content is not None:
                    path.write_bytes(content)
                self.check_failure(f"{name}: .*{message}", "--rate", "1/2", path, self.result)

    def test_bad_options(self):
        write_wav(self.source, 8000, "16", list(range(400)))
        for rate in "0/1", "1/0", "-1/2", "a/b", "1/2/3", "1.5", "", "/", "1/", "99999999999/2":
            self.check_failure("two positive whole numbers", "--rate", rate, self.source, self.result)
        for rate in "0", "-8000", "44.1", "44100 Hz", "nan", "99999999999":
            self.check_failure("whole number of hertz", "--to-rate", rate, self.source, self.result)
        self.check_failure("65537/65536", "--rate", "65537/65536", self.source, self.result)
        self.check_failure("2147483647/8000", "--to-rate", 2**31 - 1, self.source, self.result)
        self.check_failure("8000 Hz times 2/7 is not a rate", "--rate", "2/7", self.source, self.result)
        for text in "1 0.5\n2 x 3", "1\n1,5", "1\n1e999", "1\ninf", "1\n--1":
            self.check_failure('taps.txt:2: ".*" is not a number', "--taps", self.taps(text), self.source, self.result)
        for text in "", "\n \n", "# 1 2":
            self.check_failure("no taps", "--taps", self.taps(text), self.source, self.result)
        self.check_failure("cannot read", "--taps", self.folder / "none", self.source, self.result)
        self.check_failure("cannot read", "--taps", self.folder, self.source, self.result)
        for line in "", "--rate", "--rate 1/2", "--rate 1/2 a", "--rate 1/2 a b c", "a b", "--speed 2 a b", \
                "--rate 1/2 --taps t a b":
            self.check_failure("--help", *line.split())
        usage = self.run_filter("--help")
        self.assertEqual((usage.returncode, usage.stderr), (0, ""))
        self.assertRegex(usage.stdout, r"^usage: (.*\n)*.*--rate(.*\n)*.*--to-rate(.*\n)*.*--taps")

    def test_bad_bands(self):
        write_wav(self.source, 8000, "16", list(range(400)))
        files = self.source, self.result
        for option in "--lowpass", "--highpass":
            for value in "", "abc", "300:400", "1,5", "nan", "inf", "300 Hz":
                self.check_failure("a frequency in hertz is needed", option, value, *files)
            for value in "0", "-3", "4000", "1e9":
                self.check_failure("between 0 and half the sampling rate, 4000 Hz", option, value, *files)
        for option in "--bandpass", "--bandstop":
            for value in "", "300", "300:", ":300", "300:x", "1:2:3":
                self.check_failure("two frequencies in hertz are needed, such as", option, value, *files)
            for value in "0:300", "300:4000", "-1:2":
                self.check_failure("between 0 and half the sampling rate", option, value, *files)
            for value in "300:300", "400:300":
                self.check_failure("the lower frequency comes first", option, value, *files)
        for taps in "0", "-1", "x", "3.5", "":
            self.check_failure(f"--fir {taps}: a positive whole number", "--lowpass", "9", "--fir", taps, *files)
        for taps in "1", "3", "100", "1048577":
            self.check_failure("an odd number of taps is needed, from 5 to 1048575", "--lowpass", "9", "--fir", taps,
                               *files)
        self.check_failure("so narrow", "--lowpass", "0.001", *files)
        self.check_failure("so narrow", "--bandstop", "1000:1000.01", *files)
        self.check_failure("a positive whole number", "--lowpass", "9", "--iir", "0", *files)
        self.check_failure("the order is 12 at most", "--lowpass", "900", "--iir", "13", *files)
        for ripple in "0", "-1", "29.01":
            self.check_failure("above 0 and at most 29 dB", "--lowpass", "900", "--iir", "3", "--ripple", ripple, *files)
        self.check_failure("a number is needed", "--lowpass", "900", "--iir", "3", "--ripple", "much", *files)
        self.check_failure("--fir stops a band", "--bandstop", "300:900", "--iir", "3", *files)
        self.check_failure("too high an order for 20 Hz at 8000", "--bandpass", "20:900", "--iir", "8", *files)
        self.check_failure("too high an order for 3980 Hz", "--highpass", "3980", "--iir", "8", *files)
        for line in "--rate 1/2 --fir 9", "--taps t --iir 3", "--lowpass 9 --fir 9 --iir 3", "--lowpass 9 --ripple 1", \
                "--lowpass 9 --fir 9 --ripple 1", "--lowpass 9 --highpass 9", "--fir 9", "--to-rate 9 --response p":
            self.check_failure("--help", *line.split(), *files)

    def test_bad_pictures(self):
        write_wav(self.source, 8000, "16", list(range(400)))
        command = "--lowpass", "900", "--response"
        self.check_failure("is the file that is read", *command, self.source, self.source, self.result)
        self.check_failure("a file each", *command, self.result, self.source, self.result)
        self.check_failure("p.png: cannot write the picture", *command, self.folder / "none" / "p.png",
                           self.source, self.result)
        self.check_failure("nothing passes", "--taps", self.taps("0 0"), "--response", self.folder / "p.png", self.source,
                           self.result)
        self.check_failure("gnuplot is not installed", *command, self.folder / "p.png", self.source, self.result,
                           env={"PATH": "/nowhere"})

    def test_bad_output(self):
        write_wav(self.source, 8000, "16", [1000] * 50_000)
        self.check_failure("is the file that is read", "--rate", "1/2", self.source, self.source)
        self.result.symlink_to(self.source)
        self.check_failure("is the file that is read", "--rate", "1/2", self.source, self.result)
        self.result.unlink()
        self.check_failure("cannot create", "--rate", "1/2", self.source, self.folder / "no folder" / "result.wav")
        self.check_failure("not a regular file", "--rate", "1/2", self.source, self.folder)
        self.check_failure("not a regular file", "--rate", "1/2", self.source, "/dev/null")
        self.result.write_text("what was there before")
        # Python ignores the signal of the limit, and so does its child then: the write fails, as on a full disk.
        limit = {"preexec_fn": lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (30_000, 30_000))}
        self.check_failure("cannot write", "--rate", "1/2", self.source, self.result, restore_signals=False, **limit)
        link = self.folder / "link.wav"
        link.symlink_to(self.result)
        self.assertEqual(self.run_filter("--rate", "1/2", self.source, link).returncode, 0)
        self.assertEqual(len(read_wav(self.result)[3][0]), 25_000)
        self.assertTrue(link.is_symlink())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
