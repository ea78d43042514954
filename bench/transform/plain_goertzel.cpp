#include "transform/plain_goertzel.h"

#include <cmath>
#include <numbers>

namespace zors::bench {
namespace {

template <class T, class C>
void close(T c, T s, T last, T before, C* to)
{
    *to = {c * last - before, s * last};
}

template <class T, class S, class C>
void one(const S* s, int n, C* to, T frequency)
{
    const T w = 2 * std::numbers::pi_v<T> * frequency, c = std::cos(w), twice = 2 * c;
    T last = 0, before = 0;
    for (int i = 0; i < n; ++i) {
        const T next = twice * last - before + s[i];
        before = last;
        last = next;
    }
    close(c, std::sin(w), last, before, to);
}

void shortChain(const Zor32f* s, int n, Zor32fc* to, Zor32f frequency)
{
    const Zor32f w = 2 * std::numbers::pi_v<Zor32f> * frequency, c = std::cos(w), twice = 2 * c;
    Zor32f last = 0, before = 0;
    for (int i = 0; i < n; ++i) {
        const Zor32f next = (s[i] - before) + twice * last;
        before = last;
        last = next;
    }
    close(c, std::sin(w), last, before, to);
}

template <class T, class C>
void complexOne(const C* s, int n, C* to, T frequency)
{
    const T w = 2 * std::numbers::pi_v<T> * frequency, c = std::cos(w), v = std::sin(w), twice = 2 * c;
    C last{}, before{};
    for (int i = 0; i < n; ++i) {
        const C next = {twice * last.re - before.re + s[i].re, twice * last.im - before.im + s[i].im};
        before = last;
        last = next;
    }
    *to = {c * last.re - v * last.im - before.re, v * last.re + c * last.im - before.im};
}

void one16s(const Zor16s* s, int n, Zor16sc* to, Zor32f frequency)
{
    Zor32fc sum;
    one<Zor32f>(s, n, &sum, frequency);
    *to = {static_cast<Zor16s>(sum.re / 256), static_cast<Zor16s>(sum.im / 256)};
}

void two(const Zor32f* s, int n, Zor32fc* to, const Zor32f* frequencies)
{
    Zor32f c[2], v[2], last[2] = {}, before[2] = {};
    for (int k = 0; k < 2; ++k) {
        const Zor32f w = 2 * std::numbers::pi_v<Zor32f> * frequencies[k];
        c[k] = std::cos(w);
        v[k] = std::sin(w);
    }
    for (int i = 0; i < n; ++i)
        for (int k = 0; k < 2; ++k) {
            const Zor32f next = 2 * c[k] * last[k] - before[k] + s[i];
            before[k] = last[k];
            last[k] = next;
        }
    for (int k = 0; k < 2; ++k) close(c[k], v[k], last[k], before[k], to + k);
}

} // namespace

extern const PlainGoertzelLoops PLAIN_LOOPS;
const PlainGoertzelLoops PLAIN_LOOPS = {
    one<Zor32f, Zor32f>, one<Zor64f, Zor64f>, complexOne<Zor32f>, complexOne<Zor64f>, one16s, two,
    shortChain};

} // namespace zors::bench
