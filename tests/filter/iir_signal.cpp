#include "filter/iir_signal.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>
#include <stdexcept>

namespace zors::test {
namespace {

using Complex = std::complex<Wide>;
using Polynomial = std::vector<Complex>;

void succeed(ZorStatus status, const IirKind& k)
{
    if (status != zorStsOk)
        throw std::runtime_error("status " + std::to_string(status) + " of " + k.kind.name);
}

Wide between(double least, double most, Random& random)
{
    return least + (most - least) * static_cast<double>(random() >> 11) * 0x1p-53;
}

// In descending powers of z, the first coefficient 1. Angles keep their distance, so that rounded taps are a filter
// of much the same poles.
Polynomial fromRoots(int order, bool isComplex, double radius, Random& random)
{
    Polynomial p = {1};
    const auto times = [&](Complex root) {
        p.push_back(0);
        for (std::size_t i = p.size() - 1; i > 0; --i) p[i] -= root * p[i - 1];
    };
    for (int k = 0; k < order; ++k) {
        const Wide distance = between(radius / 2, radius, random), place = k / 2 + between(0.2, 0.8, random);
        const Wide pi = std::numbers::pi_v<Wide>;
        if (isComplex)
            times(std::polar(distance, 2 * pi * (k + place - k / 2) / order));
        else if (k % 2 == 1)
            continue;
        else if (k == order - 1)
            times(random() % 2 ? distance : -distance);
        else {
            const Complex root = std::polar(distance, pi * place / (order / 2));
            times(root);
            times(std::conj(root));
        }
    }
    return p;
}

void append(Numbers& numbers, Complex c, int parts)
{
    numbers.push_back(static_cast<double>(c.real()));
    if (parts == 2) numbers.push_back(static_cast<double>(c.imag()));
}

Numbers randomTaps(const IirKind& k, int order, double radius, Random& random)
{
    const int parts = k.kind.taps.parts;
    const auto number = [&] {
        const Wide re = between(0.3, 1.5, random) * (random() % 2 ? 1 : -1);
        return Complex(re, parts == 2 ? between(-1, 1, random) : 0);
    };
    Numbers taps;
    for (int i = 0; i <= order; ++i) append(taps, number(), parts);
    const Complex a0 = number();
    for (const Complex a : fromRoots(order, parts == 2, radius, random)) append(taps, a0 * a, parts);
    return taps;
}

// One section: its taps, divided by a0.
struct Section {
    Polynomial b, a;

    int order() const { return static_cast<int>(b.size()) - 1; }
};

std::vector<Section> sectionsOf(const IirSignal& s)
{
    const Numbers numbers = s.taps.numbers();
    const int parts = s.kind.kind.taps.parts, order = s.kind.isCascade() ? 2 : s.count;
    Polynomial taps;
    for (std::size_t i = 0; i < numbers.size(); i += static_cast<std::size_t>(parts)) {
        // Integer taps are converted to single precision before anything else.
        const auto meant = [&](double x) {
            return s.kind.kind.taps.isFloating()
                       ? x
                       : static_cast<double>(static_cast<float>(std::ldexp(x, -s.tapsFactor)));
        };
        taps.emplace_back(meant(numbers[i]), parts == 2 ? meant(numbers[i + 1]) : 0);
    }
    std::vector<Section> sections;
    for (auto at = taps.begin(); at != taps.end(); at += 2 * (order + 1)) {
        Section section{{at, at + order + 1}, {at + order + 1, at + 2 * (order + 1)}};
        for (Complex& b : section.b) b /= section.a[0];
        for (Complex& a : section.a) a = &a == section.a.data() ? a : a / section.a[0];
        section.a[0] = 1;
        sections.push_back(section);
    }
    return sections;
}

// What a stream leaves behind, as the numbers that are added to the next outputs, with their magnitudes.
struct Past {
    Polynomial numbers;
    std::vector<double> magnitudes;
};

Past pastOf(const IirSignal& s, const Section& section, std::size_t at)
{
    const Numbers all = s.delay.numbers();
    const auto parts = static_cast<std::size_t>(s.kind.kind.data.parts);
    const auto order = static_cast<std::size_t>(section.order());
    const auto number = [&](std::size_t i) {
        return Complex(all[i * parts], parts == 2 ? all[i * parts + 1] : 0);
    };
    Past past{Polynomial(order), std::vector<double>(order)};
    const auto add = [&](std::size_t k, Complex c) {
        past.numbers[k] += c;
        past.magnitudes[k] += static_cast<double>(std::abs(c));
    };
    for (std::size_t k = 0; k < order; ++k) {
        if (s.kind.structure != Structure::directForm1) {
            add(k, number(at * order + k));
            continue;
        }
        for (std::size_t j = 0; k + j + 1 <= order; ++j) {
            add(k, section.b[k + j + 1] * number(at * 4 + j));
            add(k, -section.a[k + j + 1] * number(at * 4 + 2 + j));
        }
    }
    return past;
}

// The sum over k of |weights[k]| x[n-k].
std::vector<double> spread(const std::vector<double>& weights, const std::vector<double>& x)
{
    std::vector<double> y(x.size());
    for (std::size_t k = 0; k < x.size(); ++k) {
        if (weights[k] < 1e-12) continue;
        for (std::size_t n = k; n < x.size(); ++n) y[n] += weights[k] * x[n - k];
    }
    return y;
}

// A section by its difference equation, from rest, and how far its outputs may be off when its inputs are.
struct Stream {
    Polynomial values;
    std::vector<double> errors;

    Polynomial through(const Section& s, const Polynomial& x, const Past& past,
                       std::vector<double>* magnitudes = nullptr) const
    {
        Polynomial y(x.size());
        for (std::size_t n = 0; n < x.size(); ++n) {
            double magnitude = 0;
            const auto add = [&](Complex c) {
                y[n] += c;
                magnitude += static_cast<double>(std::abs(c));
            };
            if (n < past.numbers.size()) {
                y[n] += past.numbers[n];
                magnitude += past.magnitudes[n];
            }
            for (std::size_t k = 0; k < s.b.size() && k <= n; ++k) {
                add(s.b[k] * x[n - k]);
                if (k > 0) add(-s.a[k] * y[n - k]);
            }
            if (magnitudes) magnitudes->push_back(magnitude);
        }
        return y;
    }

    // Roundings count with the largest magnitude among so many samples.
    void filter(const Section& s, const Past& past, double unit, std::size_t among)
    {
        std::vector<double> local;
        Polynomial impulse(values.size());
        impulse[0] = 1;
        const auto response = [&](const Section& of) {
            std::vector<double> weights;
            for (const Complex c : through(of, impulse, {}))
                weights.push_back(static_cast<double>(std::abs(c)));
            return weights;
        };
        values = through(s, values, past, &local);
        const std::vector<double> magnitudes = local;
        for (std::size_t n = 0; n < local.size(); ++n) {
            const auto last = magnitudes.begin() + static_cast<std::ptrdiff_t>(n) + 1;
            local[n] =
                unit * *std::max_element(last - static_cast<std::ptrdiff_t>(std::min(among, n + 1)), last);
        }
        Section loop = s;
        loop.b = {1};
        loop.b.resize(s.b.size());
        const auto made = spread(response(loop), local), met = spread(response(s), errors);
        for (std::size_t n = 0; n < errors.size(); ++n) errors[n] = made[n] + met[n];
    }
};

Expected expectedOf(const IirSignal& s, std::size_t among)
{
    const Numbers numbers = s.samples.numbers();
    const auto parts = static_cast<std::size_t>(s.kind.kind.data.parts);
    Stream stream;
    for (std::size_t i = 0; i < numbers.size(); i += parts)
        stream.values.emplace_back(numbers[i], parts == 2 ? numbers[i + 1] : 0);
    stream.errors.resize(stream.values.size());
    std::size_t at = 0;
    for (const Section& section : sectionsOf(s)) {
        const int roundings = parts == 2 ? 6 * section.order() + 16 : 2 * section.order() + 6;
        stream.filter(section, pastOf(s, section, at++), roundings * s.kind.kind.unit(), among);
    }
    Expected expected;
    for (std::size_t n = 0; n < stream.values.size(); ++n) {
        expected.append(stream.values[n].real(), stream.errors[n]);
        if (parts == 2) expected.append(stream.values[n].imag(), stream.errors[n]);
    }
    return expected;
}

} // namespace

IirSignal iirSignalOf(const IirKind& k, int count, Numbers taps, int len, Random& random, bool atRest,
                      int burst)
{
    Numbers samples = randomNumbers(k.kind.data, len, random);
    if (burst < len) std::fill(samples.begin() + burst * k.kind.data.parts, samples.end(), 0);
    int tapsFactor = 0;
    if (!k.kind.taps.isFloating()) {
        double most = 0;
        for (const double tap : taps) most = std::max(most, std::abs(tap));
        tapsFactor = 30 - std::ilogb(most);
        for (double& tap : taps) tap = std::nearbyint(std::ldexp(tap, tapsFactor));
    }
    const int delays = k.delays(count);
    IirSignal s{k,
                count,
                Vector(k.kind.taps, taps),
                atRest ? Vector(k.number(), delays)
                       : Vector(k.number(), randomNumbers(k.number(), delays, random)),
                Vector(k.kind.data, samples),
                tapsFactor,
                0,
                {},
                {}};
    // A step of a single section takes its numbers from the one before it.
    s.expected = expectedOf(s, k.isCascade() ? 1 : k.kind.data.parts == 2 ? 16 : 32);
    s.ofSamples = k.isCascade() ? s.expected : expectedOf(s, 1);
    if (!k.kind.data.isFloating() && len > 0) {
        Wide most = 1;
        for (const Wide y : s.expected.values) most = std::max(most, std::abs(y));
        s.scaleFactor = static_cast<int>(std::ceil(std::log2(most / k.kind.data.most()))) - below(2, random);
    }
    return s;
}

IirSignal randomIirSignal(const IirKind& k, int count, int len, Random& random, double radius, bool atRest)
{
    Numbers taps;
    for (int s = 0; s < (k.isCascade() ? count : 1); ++s) {
        const Numbers more = randomTaps(k, k.isCascade() ? 2 : count, radius, random);
        taps.insert(taps.end(), more.begin(), more.end());
    }
    return iirSignalOf(k, count, taps, len, random, atRest);
}

IirRecord::IirRecord(const IirSignal& s) : signal_(s)
{
    succeed(s.kind.kind.initAlloc(&state_, s.taps.at(), s.count, s.tapsFactor, s.delay.at()), s.kind);
}

IirRecord::~IirRecord()
{
    signal_.kind.kind.free(state_);
}

Vector IirRecord::delayLine() const
{
    Vector line(signal_.kind.number(), signal_.delay.len());
    succeed(signal_.kind.kind.getDlyLine(state_, line.at()), signal_.kind);
    return line;
}

Vector run(const IirRecord& record, const IirSignal& s, const std::vector<int>& calls, How how,
           std::ptrdiff_t from, bool singly)
{
    const Kind& k = s.kind.kind;
    Vector all(k.data, std::accumulate(calls.begin(), calls.end(), std::ptrdiff_t{0}));
    if (from + all.len() > s.samples.len()) throw std::out_of_range("a stream that ends before its calls");
    std::ptrdiff_t done = 0;
    for (const int len : calls) {
        Vector src(k.data, len, how.source), dst(k.data, len, how.destination);
        src.copy(0, s.samples, from + done, len);
        const bool single = singly && len == 1 && k.one;
        if (single)
            succeed(k.one(src.at(), dst.at(), record.get(), s.scaleFactor), s.kind);
        else if (how.inPlace)
            succeed(k.runInPlace(src.at(), len, record.get(), s.scaleFactor), s.kind);
        else
            succeed(k.run(src.at(), dst.at(), len, record.get(), s.scaleFactor), s.kind);
        all.copy(done, how.inPlace && !single ? src : dst, 0, len);
        done += len;
    }
    return all;
}

} // namespace zors::test
