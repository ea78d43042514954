"""Runs the report on real, made and bad recordings.   usage: ecg_report_test.py PROGRAM RECORDING"""
import array
import bisect
import csv
import itertools
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


def beats(rate, seconds, per_minute, deviation=3):
    """A made electrocardiogram: a QRS complex, its R peak at 0.3 s, and a T wave for each beat, on a wandering
    baseline, with noise."""
    noise = random.Random(per_minute)
    for i in range(rate * seconds):
        t = (i / rate) % (60 / per_minute) - 0.3
        complexes = 300 * math.exp(-((t / 0.017) ** 2)) + 70 * math.exp(-(((t - 0.2) / 0.07) ** 2))
        yield round(complexes + 200 * math.sin(i / rate) + noise.gauss(0, deviation))


def peaks(samples, rate):
    """The seconds at which a trace is highest within 0.15 s to either side, and half as far above the mean of 0.8 s as
    it is usually at most in 2 s: what an eye counts."""
    sums = [0, *itertools.accumulate(samples)]
    length, reach, near = len(samples), round(0.4 * rate), round(0.15 * rate)
    above = []
    for i, sample in enumerate(samples):
        begin, end = max(0, i - reach), min(length, i + reach + 1)
        above.append(sample - (sums[end] - sums[begin]) / (end - begin))
    least = statistics.median(max(above[i : i + 2 * rate]) for i in range(0, length, 2 * rate)) / 2
    return [i / rate for i, a in enumerate(above) if a > least and a == max(above[max(0, i - near) : i + near + 1])]


def matched(times, others, tolerance=0.05):
    """The share of `times` that have one of `others` beside them."""
    return sum(any(abs(t - o) <= tolerance for o in others) for t in times) / len(times)


def beat_table(path):
    """Seconds, and the interval before each beat; None where there is none."""
    with path.open(newline="") as file:
        lines = list(csv.reader(file))
    assert lines[0] == ["beat", "time (s)", "R-R interval (s)", "rate (1/min)"]
    assert [int(line[0]) for line in lines[1:]] == list(range(1, len(lines)))
    assert all(abs(float(line[3]) - 60 / float(line[2])) < 0.01 + 0.2 / len(line[2]) for line in lines[1:] if line[2])
    return [float(line[1]) for line in lines[1:]], [float(line[2]) if line[2] else None for line in lines[1:]]


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

        for ending, height, least in ("", 850, 15_000), ("_spectrum", 850, 50_000), ("_spectrogram", 600, 30_000), \
                ("_beats", 1080, 40_000):
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

    def check_beats(self, report, times, intervals):
        """What is printed about the beats is what their table says."""
        for previous, time, interval in zip(times, times[1:], intervals[1:]):
            if time - previous > 2:
                self.assertIsNone(interval)  # the trace was lost
            else:
                self.assertAlmostEqual(interval, time - previous, delta=2e-5)
        known = [i for i in intervals if i is not None]
        changes = [b - a for a, b in zip(intervals, intervals[1:]) if a is not None and b is not None]
        rate, sdnn, rmssd = map(float, re.search(
            rf"^beats: {len(times)}, mean heart rate ([\d.]+) per minute, SDNN ([\d.]+) ms, RMSSD ([\d.]+) ms$",
            report, re.MULTILINE).groups())
        self.assertAlmostEqual(rate, 60 / statistics.fmean(known), delta=0.06)
        self.assertAlmostEqual(sdnn, 1000 * statistics.stdev(known), delta=0.06)
        self.assertAlmostEqual(rmssd, 1000 * math.sqrt(statistics.fmean(c * c for c in changes)), delta=0.06)

    def test_beats_of_the_recording(self):
        rate, (trace,) = read_wav(RECORDING)
        report = self.run_report().stdout
        times, intervals = beat_table(self.out / "ecg_360hz_beats.csv")
        self.check_beats(report, times, intervals)
        self.assertEqual(intervals.count(None), 4)  # the first beat, and three times the electrodes lose the heart
        counted = peaks(trace, rate)
        sensitivity, predictivity = matched(counted, times), matched(times, counted)
        print(f"{len(times)} beats, {len(counted)} peaks: sensitivity {sensitivity:.4f}, positive predictivity "
              f"{predictivity:.4f}")
        self.assertAlmostEqual(len(times), 498, delta=5)
        self.assertGreater(min(sensitivity, predictivity), 0.985)

    def test_beats_have_the_time_of_their_r_peak(self):
        cases = (360, 60, 39, 3, 1), (250, 60, 75, 40, 1), (500, 30, 201, 3, 1), (360, 30, 90, 3, -1), (50, 30, 70, 3, 1), \
            (8000, 4, 120, 3, 1)
        for rate, seconds, pulse, deviation, sign in cases:
            with self.subTest(rate=rate, pulse=pulse, deviation=deviation, sign=sign):
                write_wav(self.folder / "made.wav", rate, [sign * s for s in beats(rate, seconds, pulse, deviation)])
                report = self.run_report(self.folder / "made.wav").stdout
                times, intervals = beat_table(self.out / "made_beats.csv")
                self.check_beats(report, times, intervals)
                wanted = [0.3 + k * 60 / pulse for k in range(math.ceil((seconds - 0.3) * pulse / 60))]
                self.assertEqual(len(times), len(wanted))
                # Noise moves a peak along its flat top.
                self.assertLess(max(abs(t - w) for t, w in zip(times, wanted)), 0.5 / rate + 0.001 * deviation)

    def test_weak_beats_and_tall_t_waves(self):
        """Every seventh beat has 0.55 of the height, which is found by searching back. The T waves are as high as the
        complexes, and a third as steep; an artefact is ten times as high, and its beat the only one to be lost."""
        rate, seconds = 360, 60
        waves, wanted = [(31.2, 2500, 0.04)], []
        for k in range(math.floor((seconds - 0.5) / 0.8)):
            time, height = 0.4 + 0.8 * k, 0.55 if k % 7 == 6 else 1
            waves += (time, 300 * height, 0.017), (time + 0.26, 300 * height, 0.05)
            wanted.append(time)
        noise = random.Random(6)
        trace = [noise.gauss(0, 3) for _ in range(rate * seconds)]
        for time, height, width in waves:
            for i in range(max(0, round((time - 5 * width) * rate)), min(len(trace), round((time + 5 * width) * rate))):
                trace[i] += height * math.exp(-(((i / rate - time) / width) ** 2))
        write_wav(self.folder / "made.wav", rate, [round(t) for t in trace])
        self.run_report(self.folder / "made.wav")
        times, _ = beat_table(self.out / "made_beats.csv")
        self.assertGreaterEqual(matched(wanted, times, 0.01), 1 - 1 / len(wanted))
        self.assertGreaterEqual(matched(times, wanted, 0.01), 1 - 1 / len(times))

    def test_what_has_no_beats(self):
        noise = random.Random(4)
        wandering = itertools.accumulate(range(60 * 360), lambda sum, _: 0.98 * sum + noise.gauss(0, 20), initial=0)
        cases = {
            "white noise": [round(noise.gauss(0, 100)) for _ in range(60 * 360)],
            "wandering": [round(w) for w in wandering],
            "steps of one": [noise.randrange(-1, 2) for _ in range(60 * 360)],
            "constant": [777] * 3600,
            "hum": [round(300 * math.sin(2 * math.pi * i / 7.2)) for i in range(3600)],
        }
        for name, samples in cases.items():
            with self.subTest(name):
                write_wav(self.folder / "made.wav", 360, samples)
                result = self.run_report(self.folder / "made.wav")
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertIn("\nbeats: none found\n", result.stdout)
                self.assertEqual(beat_table(self.out / "made_beats.csv"), ([], []))

    def test_what_has_too_few_beats(self):
        made = list(beats(360, 3, 60))
        few = "; too few for mean heart rate, SDNN, RMSSD"
        for length, said in (900, ", mean heart rate 60.0 per minute, SDNN 0.0 ms, RMSSD 0.0 ms"), \
                (540, ", mean heart rate 60.0 per minute; too few for SDNN, RMSSD"), (300, few):
            with self.subTest(length=length):
                write_wav(self.folder / "short.wav", 360, made[:length])
                result = self.run_report(self.folder / "short.wav")
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertIn(f"\nbeats: {round(length / 360 + 0.2)}{said}\n", result.stdout)
        write_wav(self.folder / "slow.wav", 49, made)
        result = self.run_report(self.folder / "slow.wav")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn("\nbeats: only found at rates of 50 to 100000 samples a second\n", result.stdout)
        self.assertFalse((self.out / "slow_beats.csv").exists())
        self.assertTrue((self.out / "slow_beats.png").exists())

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
        with self.subTest("the disk is full when the beats are written"):
            (self.out / "short_beats.csv").unlink()  # of the run before
            (self.out / "short_beats.csv").symlink_to("/dev/full")
            self.check_failure(self.run_report(short), "short_beats.csv: cannot write")
            (self.out / "short_beats.csv").unlink()
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
