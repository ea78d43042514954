"""Runs the report on real, made and bad recordings.   usage: ecg_report_test.py PROGRAM RECORDING"""
import array
import bisect
import math
import pathlib
import random
import re
import statistics
import struct
import subprocess
import sys
import tempfile
import unittest
import warnings
import wave

with warnings.catch_warnings():
    warnings.simplefilter("ignore", DeprecationWarning)
    import audioop

PROGRAM, RECORDING = sys.argv[1], pathlib.Path(sys.argv[2])
UNITS_PER_MILLIVOLT = 200


def read_wav(path):
    """The sample rate, and the samples of each channel."""
    with wave.open(str(path)) as file:
        samples = array.array("h", file.readframes(file.getnframes()))
        return file.getframerate(), [samples[i :: file.getnchannels()] for i in range(file.getnchannels())]


def write_wav(path, rate, *channels):
    with wave.open(str(path), "wb") as file:
        file.setparams((len(channels), 2, rate, 0, "NONE", None))
        file.writeframes(array.array("h", [s for frame in zip(*channels) for s in frame]).tobytes())


def float_wav(samples):
    data = struct.pack(f"<{len(samples)}f", *samples)
    form = struct.pack("<4sIHHIIHH", b"fmt ", 16, 3, 1, 360, 1440, 4, 32)
    return struct.pack("<4sI4s", b"RIFF", 36 + len(data), b"WAVE") + form + struct.pack("<4sI", b"data", len(data)) + data


def rows(report):
    """The figures of each line of the table; None stands for a deviation that is not defined."""
    found = re.findall(r"^(?:whole|[\d.]+ - [\d.]+ s) +(.*)$", report, re.MULTILINE)
    return [[None if f == "-" else float(f) for f in line.split()] for line in found]


def heart_rates(report):
    return [float(rate) for rate in re.findall(r"^heart rate: ([\d.]+) beats per minute", report, re.MULTILINE)]


def beats(rate, seconds, per_minute):
    """A made electrocardiogram: a QRS complex and a T wave for each beat, on a wandering baseline, with noise."""
    noise = random.Random(per_minute)
    for i in range(rate * seconds):
        t = (i / rate) % (60 / per_minute) - 0.3
        complexes = 300 * math.exp(-((t / 0.017) ** 2)) + 70 * math.exp(-(((t - 0.2) / 0.07) ** 2))
        yield round(complexes + 200 * math.sin(i / rate) + noise.gauss(0, 3))


def signal_to_noise(samples, decode):
    """In dB if each sample becomes the nearest one that has a code, by Python's decoding tables."""
    levels = sorted(array.array("h", decode(bytes(range(256)), 2)))
    noise = 0
    for s in samples:
        i = bisect.bisect(levels, s, 1, len(levels) - 1)
        noise += min(s - levels[i - 1], levels[i] - s, key=abs) ** 2
    return 10 * math.log10(sum(s * s for s in samples) / noise)


def expected_rows(samples, rate):
    stretches = [samples] + [samples[i : i + 10 * rate] for i in range(0, len(samples), 10 * rate)]
    for s in stretches:
        deviation = statistics.stdev(s) if len(s) > 1 else None
        yield [f and f / UNITS_PER_MILLIVOLT for f in (math.fsum(s) / len(s), deviation, min(s), max(s))]


class EcgReport(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.out = self.folder / "it's out"

    def run_report(self, *arguments, **options):
        options.setdefault("stdout", subprocess.PIPE)
        command = [PROGRAM, *map(str, arguments), "--out", str(self.out)]
        return subprocess.run(command, stderr=subprocess.PIPE, text=True, timeout=120, **options)

    def check_success(self, result, name, rate, channels):
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        length = len(channels[0])
        self.assertIn(f"{length / rate:.3f} s, {length} samples at {rate} Hz", result.stdout)

        expected = [row for samples in channels for row in expected_rows(samples, rate)]
        printed = rows(result.stdout)
        self.assertEqual(len(printed), len(expected))
        for got, wanted in zip(printed, expected):
            for g, w in zip(got, wanted, strict=True):
                self.assertTrue(g is w is None or abs(g - w) < 0.00051, (got, wanted))

        written_rate, written = read_wav(self.out / f"{name}_centred.wav")
        self.assertEqual((written_rate, len(written)), (rate, len(channels)))
        for got, samples in zip(written, channels):
            mean = math.fsum(samples) / length
            self.assertEqual(len(got), length)
            self.assertLess(abs(math.fsum(got) / length), 0.51)
            self.assertLess(max(abs(g - (s - mean)) for g, s in zip(got, samples)), 0.51)

        for ending, height, least in ("", 850, 15_000), ("_spectrum", 850, 50_000), ("_spectrogram", 600, 30_000):
            png = (self.out / f"{name}{ending}.png").read_bytes()
            self.assertEqual(png[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", png[16:24]), (1600, height * len(channels)))
            self.assertIn(b"IEND", png[-12:])
            self.assertGreater(len(png), least * len(channels))  # an empty frame has less

    def check_failure(self, result, message):
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stderr, f"^ecg_report: .*{message}.*\n$")

    def test_recording(self):
        rate, channels = read_wav(RECORDING)
        self.assertEqual((rate, len(channels[0])), (360, 108_000))
        result = self.run_report()
        self.check_success(result, "ecg_360hz", rate, channels)
        # 498 beats are counted in the five minutes. The trace itself is strongest at 0.1 and at 2.2 Hz.
        self.assertAlmostEqual(heart_rates(result.stdout)[0], 498 / 5, delta=2)
        found = re.search(r"mu-law (.*) dB, A-law (.*) dB", result.stdout)
        # Where the step doubles a decision value is not quite half-way between two levels.
        self.assertAlmostEqual(float(found[1]), signal_to_noise(channels[0], audioop.ulaw2lin), delta=0.1)
        self.assertAlmostEqual(float(found[2]), signal_to_noise(channels[0], audioop.alaw2lin), delta=0.1)

    def test_stereo_with_a_last_segment_of_one_sample(self):
        noise = random.Random(1)
        left = [round(300 * math.sin(i / 9)) + noise.randrange(-50, 50) for i in range(2001)]
        right = [1000 - s // 3 for s in left]
        write_wav(self.folder / "two.wav", 100, left, right)
        result = self.run_report(self.folder / "two.wav")
        self.check_success(result, "two", 100, [left, right])
        self.assertEqual(sum(row[1] is None for row in rows(result.stdout)), 2)

    def test_heart_rate(self):
        for rate, seconds, pulse in (360, 60, 39), (250, 60, 75), (500, 30, 201), (360, 5, 90), (8000, 3, 120):
            with self.subTest(rate=rate, seconds=seconds, pulse=pulse):
                write_wav(self.folder / "made.wav", rate, list(beats(rate, seconds, pulse)))
                result = self.run_report(self.folder / "made.wav")
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertAlmostEqual(heart_rates(result.stdout)[0], pulse, delta=pulse / 100)
        write_wav(self.folder / "two.wav", 360, list(beats(360, 20, 62)), list(beats(360, 20, 111)))
        left, right = heart_rates(self.run_report(self.folder / "two.wav").stdout)
        self.assertAlmostEqual(left, 62, delta=0.62)
        self.assertAlmostEqual(right, 111, delta=1.11)

    def test_one_sample(self):
        write_wav(self.folder / "one.wav", 360, [77])
        result = self.run_report(self.folder / "one.wav")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertEqual(rows(result.stdout), [[0.385, None, 0.385, 0.385]] * 2)
        self.assertIn("heart rate: none found", result.stdout)
        self.assertTrue((self.out / "one_spectrogram.png").read_bytes().startswith(b"\x89PNG"))

    def test_bad_input(self):
        whole = RECORDING.read_bytes()
        write_wav(self.folder / "three", 360, *[[1, 2, 3]] * 3)
        write_wav(self.folder / "no samples", 360, [])
        cases = {
            "empty": (b"", "empty"),
            "text": (b"A recording, or so they said.\n" * 9, "not a readable WAV file"),
            "other sound": (b".snd" + struct.pack(">5I", 24, 8, 3, 360, 1) + bytes(8), "not a WAV file"),
            "cut": (whole[:-1001], "truncated"),
            "cut behind the header": (whole[:44], "truncated"),
            "cut in the header": (whole[:30], "not a readable WAV file"),
            "floats": (float_wav([0.5] * 90), "floating-point"),
            "three": (None, "3 channels"),
            "no samples": (None, "no samples"),
            "missing": (None, "no such"),
        }
        for name, (content, message) in cases.items():
            with self.subTest(name):
                path = self.folder / name
                if content is not None:
                    path.write_bytes(content)
                result = self.run_report(path)
                self.check_failure(result, message)
                self.assertIn(name, result.stderr)
                self.assertEqual(result.stdout, "")
                self.assertFalse(self.out.exists())

    def test_failing_output(self):
        short = self.folder / "short.wav"
        write_wav(short, 360, range(-400, 400))
        with self.subTest("the folder is a file"):
            self.out.touch()
            self.check_failure(self.run_report(short), "")
            self.out.unlink()
        with self.subTest("the disk is full"):
            self.out.mkdir()
            (self.out / "short_centred.wav").symlink_to("/dev/full")
            self.check_failure(self.run_report(short), "short_centred.wav: cannot")
            (self.out / "short_centred.wav").unlink()
        with self.subTest("no picture can be written"):
            (self.out / "short.png").mkdir()
            (self.out / "short.png" / "inside").touch()
            self.check_failure(self.run_report(short), "short.png")
            (self.out / "short.png" / "inside").unlink()
        with self.subTest("nobody reads the report"), open("/dev/full", "w") as full:
            self.check_failure(self.run_report(short, stdout=full), "standard output")
        with self.subTest("no gnuplot"):
            self.check_failure(self.run_report(short, env={"PATH": "/nowhere"}), "gnuplot is not installed")
        with self.subTest("a gnuplot that fails at once"):
            (self.folder / "gnuplot").write_text("#!/bin/sh\nexit 3\n")
            (self.folder / "gnuplot").chmod(0o755)
            self.check_failure(self.run_report(RECORDING, env={"PATH": str(self.folder)}), "gnuplot failed")

    def test_usage(self):
        for arguments in (["--in", "x"], ["a.wav", "b.wav"]):
            self.check_failure(self.run_report(*arguments), "usage")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
