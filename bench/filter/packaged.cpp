#include "filter/packaged.h"

#include <algorithm>
#include <chrono>
#include <complex>
#include <fftw3.h>
#include <liquid/liquid.h>
#include <map>
#include <volk/volk.h>

namespace zors::bench {
namespace {

using Complex = std::complex<float>;

// The least power of two above n.
int powerAbove(int n)
{
    int power = 1;
    while (power <= n) power *= 2;
    return power;
}

double seconds(const Operation& run)
{
    double least = INFINITY;
    for (int i = 0; i < 20; ++i) {
        const auto start = std::chrono::steady_clock::now();
        run();
        least =
            std::min(least, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return least;
}

// The stream of the fastest size, found on first use for a filter's length and a block's.
template <class Make>
StreamMaker<Zor32f, Zor32f> ofFastestSize(const char* name, Make make)
{
    using Key = std::pair<int, int>;
    return {name,
            [=, sizes = std::make_shared<std::map<Key, int>>()](const Filter<Zor32f>& filter, int block) {
                const int power = powerAbove(filter.length());
                const auto [at, isNew] = sizes->try_emplace({filter.length(), block}, 2 * power);
                double least = INFINITY;
                for (const int size : {2 * power, 4 * power, 8 * power, 16 * power}) {
                    if (!isNew) break;
                    const auto stream = make(filter, block, size);
                    if (!stream.run) continue;
                    std::fill_n(stream.in.get(), block, 1.0f);
                    const double time = seconds(stream.run);
                    if (time < least) least = time, at->second = size;
                }
                return make(filter, block, at->second);
            }};
}

// Overlap-save: what N points of a circular convolution have right, N - L + 1 outputs.
class Convolver {
public:
    Convolver(const Filter<Zor32f>& filter, int n)
        : n_(n), length_(filter.length()), points_(allocate(n)), spectrum_(allocate(n + 2)),
          taps_(allocate(n + 2))
    {
        forward_ = fftwf_plan_dft_r2c_1d(n, points_.get(), pairs(spectrum_), FFTW_MEASURE);
        inverse_ = fftwf_plan_dft_c2r_1d(n, pairs(spectrum_), points_.get(), FFTW_MEASURE);
        std::fill_n(points_.get(), n, 0.0f);
        for (int k = 0; k < length_; ++k)
            points_[k] = filter.taps[static_cast<std::size_t>(k)] / static_cast<float>(n);
        fftwf_execute_dft_r2c(forward_, points_.get(), pairs(taps_));
    }
    Convolver(const Convolver&) = delete;
    Convolver& operator=(const Convolver&) = delete;
    ~Convolver()
    {
        fftwf_destroy_plan(forward_);
        fftwf_destroy_plan(inverse_);
    }

    // x begins with the L - 1 samples before the first output.
    void operator()(const float* x, float* y, int count) const
    {
        const int step = n_ - length_ + 1;
        for (int i = 0; i < count; i += step) {
            const int outputs = std::min(step, count - i), used = outputs + length_ - 1;
            std::copy_n(x + i, used, points_.get());
            std::fill(points_.get() + used, points_.get() + n_, 0.0f);
            fftwf_execute(forward_);
            multiply();
            fftwf_execute(inverse_);
            std::copy_n(points_.get() + length_ - 1, outputs, y + i);
        }
    }

private:
    using Memory = std::shared_ptr<float[]>;
    static Memory allocate(int n) { return {fftwf_alloc_real(static_cast<std::size_t>(n)), fftwf_free}; }
    static fftwf_complex* pairs(const Memory& memory)
    {
        return reinterpret_cast<fftwf_complex*>(memory.get());
    }

    void multiply() const
    {
        auto* s = reinterpret_cast<lv_32fc_t*>(spectrum_.get());
        volk_32fc_x2_multiply_32fc(s, s, reinterpret_cast<const lv_32fc_t*>(taps_.get()),
                                   static_cast<unsigned>(n_ / 2 + 1));
    }

    int n_, length_;
    Memory points_, spectrum_, taps_;
    fftwf_plan forward_, inverse_;
};

template <class Handle>
std::shared_ptr<std::remove_pointer_t<Handle>> owned(Handle made, int (*destroy)(Handle))
{
    if (!made) fail("liquid-dsp", "makes no filter");
    return {made, destroy};
}

auto liquidFilter(const Filter<Zor32f>& filter)
{
    auto taps = filter.taps;
    return owned(firfilt_rrrf_create(taps.data(), static_cast<unsigned>(taps.size())), firfilt_rrrf_destroy);
}

} // namespace

StreamMaker<Zor32f, Zor32f> volk32f()
{
    return overHistory<Zor32f, Zor32f>("VOLK", [](const Zor32f* x, Zor32f* y, int n, const Zor32f* r, int L) {
        for (int i = 0; i < n; ++i) volk_32f_x2_dot_prod_32f(y + i, x + i, r, static_cast<unsigned>(L));
    });
}

StreamMaker<Zor32fc, Zor32fc> volk32fc()
{
    return overHistory<Zor32fc, Zor32fc>(
        "VOLK", [](const Zor32fc* x, Zor32fc* y, int n, const Zor32fc* r, int L) {
            for (int i = 0; i < n; ++i)
                volk_32fc_x2_dot_prod_32fc(reinterpret_cast<lv_32fc_t*>(y + i),
                                           reinterpret_cast<const lv_32fc_t*>(x + i),
                                           reinterpret_cast<const lv_32fc_t*>(r), static_cast<unsigned>(L));
        });
}

StreamMaker<Zor32f, Zor32f> volkOne()
{
    return {"VOLK", [](const Filter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const int length = filter.length();
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block),
                           line = vector<Zor32f>(2 * length);
                std::fill_n(line.get(), 2 * length, 0.0f);
                return {in, out, [=, reversed = filter.reversed, index = 0]() mutable {
                            for (int i = 0; i < block; ++i) {
                                line[index] = line[index + length] = in[i];
                                index = index + 1 < length ? index + 1 : 0;
                                volk_32f_x2_dot_prod_32f(out.get() + i, line.get() + index, reversed.data(),
                                                         static_cast<unsigned>(length));
                            }
                        }};
            }};
}

StreamMaker<Zor32f, Zor32f> liquid32f()
{
    return {"firfilt", [](const Filter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block);
                return {in, out, [=, made = liquidFilter(filter)] {
                            firfilt_rrrf_execute_block(made.get(), in.get(), static_cast<unsigned>(block),
                                                       out.get());
                        }};
            }};
}

StreamMaker<Zor32f, Zor32f> liquidOne()
{
    return {"firfilt", [](const Filter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block);
                return {in, out, [=, made = liquidFilter(filter)] {
                            for (int i = 0; i < block; ++i) {
                                firfilt_rrrf_push(made.get(), in[i]);
                                firfilt_rrrf_execute(made.get(), out.get() + i);
                            }
                        }};
            }};
}

StreamMaker<Zor32fc, Zor32fc> liquid32fc()
{
    return {"firfilt", [](const Filter<Zor32fc>& filter, int block) -> Stream<Zor32fc> {
                const auto in = vector<Zor32fc>(block), out = vector<Zor32fc>(block);
                auto taps = filter.taps;
                const auto made = owned(firfilt_cccf_create(reinterpret_cast<Complex*>(taps.data()),
                                                            static_cast<unsigned>(taps.size())),
                                        firfilt_cccf_destroy);
                return {in, out, [=] {
                            firfilt_cccf_execute_block(made.get(), reinterpret_cast<Complex*>(in.get()),
                                                       static_cast<unsigned>(block),
                                                       reinterpret_cast<Complex*>(out.get()));
                        }};
            }};
}

StreamMaker<Zor32f, Zor32f> liquidTransformed()
{
    return ofFastestSize("fftfilt", [](const Filter<Zor32f>& filter, int block, int size) -> Stream<Zor32f> {
        // Transforms of `size` points, half of them outputs; not fewer than the taps, and not more than the block.
        const int step = std::min(size / 2, block);
        if (step < filter.length() - 1) return {};
        const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block);
        auto taps = filter.taps;
        const auto made = owned(
            fftfilt_rrrf_create(taps.data(), static_cast<unsigned>(taps.size()), static_cast<unsigned>(step)),
            fftfilt_rrrf_destroy);
        return {in, out, [=] {
                    for (int i = 0; i < block; i += step)
                        fftfilt_rrrf_execute(made.get(), in.get() + i, out.get() + i);
                }};
    });
}

StreamMaker<Zor32f, Zor32f> overlapSave()
{
    return ofFastestSize("FFTW", [](const Filter<Zor32f>& filter, int block, int size) {
        const auto convolver = std::make_shared<Convolver>(filter, size);
        const auto maker = overHistory<Zor32f, Zor32f>(
            "FFTW", [=](const Zor32f* x, Zor32f* y, int n, const Zor32f*, int) { (*convolver)(x, y, n); });
        return maker.make(filter, block);
    });
}

} // namespace zors::bench
