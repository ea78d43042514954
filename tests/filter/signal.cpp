#include "filter/signal.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <stdexcept>

namespace zors::test {
namespace {

void succeed(ZorStatus status, const Kind& kind)
{
    if (status != zorStsOk) throw std::runtime_error("status " + std::to_string(status) + " of " + kind.name);
}

// Random taps have a root mean square of 0.58, and so have samples: four times the result's stays in range.
int scaleFactorOf(const Kind& kind, double products)
{
    if (kind.data.isFloating()) return 0;
    return static_cast<int>(std::ceil(std::log2(4.0 / 3 * std::sqrt(products * kind.data.parts))));
}

double norm(const Numbers& numbers)
{
    double squares = 0;
    for (const double x : numbers) squares += x * x;
    return std::sqrt(squares);
}

std::vector<int> cut(std::ptrdiff_t all, auto length)
{
    std::vector<int> calls;
    for (; all > 0; all -= calls.back())
        calls.push_back(static_cast<int>(std::min<std::ptrdiff_t>(all, length())));
    return calls;
}

} // namespace

Vector Signal::stream() const
{
    return {kind.data, Numbers(samples.begin() + history * kind.data.parts, samples.end())};
}

Vector Signal::delayLine(int delays, std::ptrdiff_t at) const
{
    const Vector all(kind.data, samples);
    Vector line(kind.data, delays);
    for (int i = 0; i < delays; ++i) line.copy(i, all, history + at - 1 - i, 1);
    return line;
}

Expected Signal::expected(std::ptrdiff_t count, Rates rates, std::ptrdiff_t step) const
{
    Numbers meant = taps;
    for (double& h : meant) h = std::ldexp(h, -tapsFactor);
    return filtered(meant, samples, kind.data.parts, history, count, rates, step);
}

Signal randomSignal(const Kind& kind, int tapsLen, std::ptrdiff_t len, Random& random, Rates rates)
{
    const int history = rates.delays(tapsLen);
    return {kind,
            tapsLen,
            history,
            randomNumbers(kind.taps, tapsLen, random),
            randomNumbers(kind.data, history + len, random),
            kind.tapsFactor(),
            scaleFactorOf(kind, history)};
}

Signal exactSignal(const Kind& kind, int tapsLen, std::ptrdiff_t len, Random& random, Rates rates)
{
    const int history = rates.delays(tapsLen);
    const bool floating = kind.taps.isFloating();
    // For ties to arise, a sum in doubles must be longer than the float that it is rounded to.
    const bool longer = kind.data.number == Number::float32 && !kind.isNarrow();
    return {kind,
            tapsLen,
            history,
            randomMultiples(kind.taps, tapsLen, floating ? 0.5 : 1, longer ? 4000 : 3, random),
            randomMultiples(kind.data, history + len, 1, longer ? 16000 : 100, random),
            floating ? 0 : 1,
            0};
}

Record::Record(const Signal& s) : kind_(s.kind)
{
    const Vector taps(kind_.taps, s.taps), delays = s.delayLine(s.history);
    succeed(kind_.initAlloc(&state_, taps.at(), s.tapsLen, s.tapsFactor, delays.at()), kind_);
}

Record::Record(const Signal& s, Rates rates) : kind_(s.kind)
{
    const Vector taps(kind_.taps, s.taps), delays = s.delayLine(s.history);
    if (kind_.multiRateInitAlloc) {
        succeed(kind_.multiRateInitAlloc(&state_, taps.at(), s.tapsLen, s.tapsFactor, rates, delays.at()),
                kind_);
        return;
    }
    int size = 0;
    succeed(kind_.multiRateSize(s.tapsLen, rates.up, rates.down, &size), kind_);
    memory_.resize(static_cast<std::size_t>(size));
    succeed(
        kind_.multiRateInit(&state_, taps.at(), s.tapsLen, s.tapsFactor, rates, delays.at(), memory_.data()),
        kind_);
}

Record::~Record()
{
    kind_.free(state_);
}

Vector Record::delayLine(int delays) const
{
    Vector line(kind_.data, delays);
    succeed(kind_.getDlyLine(state_, line.at()), kind_);
    return line;
}

Vector run(const Record& record, const Signal& signal, const std::vector<int>& calls, How how, Rates rates,
           std::ptrdiff_t from)
{
    const Kind& kind = signal.kind;
    const Vector stream = signal.stream();
    Vector all(kind.data, std::accumulate(calls.begin(), calls.end(), std::ptrdiff_t{0}) * rates.up);
    if ((from * rates.up + all.len()) * rates.down > stream.len() * rates.up)
        throw std::out_of_range("a stream that ends before its calls");
    std::ptrdiff_t done = 0;
    for (const int iterations : calls) {
        const std::ptrdiff_t in = std::ptrdiff_t{iterations} * rates.down,
                             out = std::ptrdiff_t{iterations} * rates.up;
        Vector src(kind.data, how.inPlace ? std::max(in, out) : in, how.source);
        Vector dst(kind.data, out, how.destination);
        src.copy(0, stream, (from + done) * rates.down, in);
        succeed(how.inPlace ? kind.runInPlace(src.at(), iterations, record.get(), signal.scaleFactor)
                            : kind.run(src.at(), dst.at(), iterations, record.get(), signal.scaleFactor),
                kind);
        all.copy(done * rates.up, how.inPlace ? src : dst, 0, out);
        done += iterations;
    }
    return all;
}

Vector runSingly(const Record& record, const Signal& signal, std::ptrdiff_t count, std::ptrdiff_t from)
{
    const Vector stream = signal.stream();
    Vector all(signal.kind.data, count);
    for (std::ptrdiff_t n = 0; n < count; ++n)
        succeed(signal.kind.one(stream.at(from + n), all.at(n), record.get(), signal.scaleFactor),
                signal.kind);
    return all;
}

std::vector<int> randomCalls(std::ptrdiff_t all, int longest, Random& random)
{
    return cut(all, [&] { return 1 + below(longest, random); });
}

std::vector<int> equalCalls(std::ptrdiff_t all, int length)
{
    return cut(all, [=] { return length; });
}

double transformUnit(const Signal& s)
{
    const double taps = std::ldexp(norm(s.taps), -s.tapsFactor);
    const double mean = norm(s.samples) / std::sqrt(static_cast<double>(s.len() + s.history));
    return 2 * s.kind.unit() * std::sqrt(std::log2(transformLength(s.tapsLen))) * taps * mean;
}

bool timeIsShort()
{
    return std::getenv("ZORS_TEST_MOST_ORDER") != nullptr;
}

} // namespace zors::test
