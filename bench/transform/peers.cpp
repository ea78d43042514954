#include "transform/peers.h"
#include "transform/data.h"

#include <complex>
#include <cstdlib>
#include <fftw3.h>
#include <kissfft.hh>
#include <map>
#include <memory>

extern "C" {
#include <libavutil/tx.h>
}

namespace zors::bench {
namespace {

// FFTW has one set of names for each precision.
template <class T>
struct Fftw;

#define ZORS_FFTW(T, prefix, letter)                                                                         \
    template <>                                                                                              \
    struct Fftw<T> {                                                                                         \
        using Plan = prefix##_plan;                                                                          \
        using Pair = prefix##_complex;                                                                       \
        static constexpr char suffix = letter;                                                               \
        static Plan complex(int n, T* in, T* out, unsigned flags)                                            \
        {                                                                                                    \
            return prefix##_plan_dft_1d(n, reinterpret_cast<Pair*>(in), reinterpret_cast<Pair*>(out),        \
                                        FFTW_FORWARD, flags);                                                \
        }                                                                                                    \
        static Plan forward(int n, T* in, T* out, unsigned flags)                                            \
        {                                                                                                    \
            return prefix##_plan_dft_r2c_1d(n, in, reinterpret_cast<Pair*>(out), flags);                     \
        }                                                                                                    \
        static Plan inverse(int n, T* in, T* out, unsigned flags)                                            \
        {                                                                                                    \
            return prefix##_plan_dft_c2r_1d(n, reinterpret_cast<Pair*>(in), out, flags);                     \
        }                                                                                                    \
        static void run(Shape shape, Plan plan, T* in, T* out)                                               \
        {                                                                                                    \
            if (shape == Shape::complexForward)                                                              \
                prefix##_execute_dft(plan, reinterpret_cast<Pair*>(in), reinterpret_cast<Pair*>(out));       \
            else if (shape == Shape::realForward)                                                            \
                prefix##_execute_dft_r2c(plan, in, reinterpret_cast<Pair*>(out));                            \
            else                                                                                             \
                prefix##_execute_dft_c2r(plan, reinterpret_cast<Pair*>(in), out);                            \
        }                                                                                                    \
        static void load(const char* file) { prefix##_import_wisdom_from_filename(file); }                   \
        static void save(const char* file) { prefix##_export_wisdom_to_filename(file); }                     \
    };

ZORS_FFTW(float, fftwf, 'f')
ZORS_FFTW(double, fftw, 'd')

template <class T>
typename Fftw<T>::Plan fftwPlan(Shape shape, int n, unsigned effort)
{
    static std::map<std::tuple<Shape, int, unsigned>, typename Fftw<T>::Plan> plans;
    const auto [at, isNew] = plans.try_emplace({shape, n, effort});
    if (!isNew) return at->second;
    const char* wisdom = std::getenv("ZORS_FFTW_WISDOM");
    const std::string file = wisdom ? std::string(wisdom) + Fftw<T>::suffix : std::string();
    if (wisdom) Fftw<T>::load(file.c_str());
    const auto in = randomData<T>(shape, n), out = randomData<T>(shape, n);
    const unsigned flags = effort | FFTW_PRESERVE_INPUT;
    at->second = shape == Shape::complexForward ? Fftw<T>::complex(n, in.get(), out.get(), flags)
                 : shape == Shape::realForward  ? Fftw<T>::forward(n, in.get(), out.get(), flags)
                                                : Fftw<T>::inverse(n, in.get(), out.get(), flags);
    if (wisdom) Fftw<T>::save(file.c_str());
    return at->second;
}

template <class T>
Contender fftw(const char* name, Shape shape, unsigned effort)
{
    return {name, [=](int n) -> Operation {
                const auto plan = fftwPlan<T>(shape, n, effort);
                return [=, in = randomData<T>(shape, n), out = randomData<T>(shape, n)] {
                    Fftw<T>::run(shape, plan, in.get(), out.get());
                };
            }};
}

template <class T>
Contender avTx(Shape shape)
{
    constexpr bool isFloat = sizeof(T) == 4;
    const AVTXType type = shape == Shape::complexForward ? (isFloat ? AV_TX_FLOAT_FFT : AV_TX_DOUBLE_FFT)
                                                         : (isFloat ? AV_TX_FLOAT_RDFT : AV_TX_DOUBLE_RDFT);
    return {"av_tx", [=](int n) -> Operation {
                // It takes longer ones too, by the plain sum.
                constexpr int longest = 1 << 17;
                if (n > longest) return {};
                struct Plan {
                    AVTXContext* context = nullptr;
                    av_tx_fn run = nullptr;
                };
                static std::map<std::pair<Shape, int>, Plan> plans;
                const auto [at, isNew] = plans.try_emplace({shape, n});
                const T scale = 1;
                const bool inverse = shape == Shape::realInverse;
                if (isNew &&
                    av_tx_init(&at->second.context, &at->second.run, type, inverse, n, &scale, 0) < 0)
                    at->second.run = nullptr;
                const Plan plan = at->second;
                if (!plan.run) return {};
                const auto stride =
                    static_cast<ptrdiff_t>(shape == Shape::realForward ? sizeof(T) : sizeof(std::complex<T>));
                return [=, in = randomData<T>(shape, n), out = randomData<T>(shape, n)] {
                    plan.run(plan.context, out.get(), in.get(), stride);
                };
            }};
}

template <class T>
Contender kiss(Shape shape)
{
    return {"KissFFT", [=](int n) -> Operation {
                if (shape == Shape::realInverse) return {};
                const bool real = shape == Shape::realForward;
                static std::map<int, std::shared_ptr<kissfft<T>>> plans;
                auto& plan = plans[real ? n / 2 : n];
                if (!plan) plan = std::make_shared<kissfft<T>>(real ? n / 2 : n, false);
                return [=, plan = plan, in = randomData<T>(shape, n), out = randomData<T>(shape, n)] {
                    auto* spectrum = reinterpret_cast<std::complex<T>*>(out.get());
                    if (real)
                        plan->transform_real(in.get(), spectrum);
                    else
                        plan->transform(reinterpret_cast<const std::complex<T>*>(in.get()), spectrum);
                };
            }};
}

} // namespace

template <class T>
std::vector<Contender> peersOf(Shape shape)
{
    return {fftw<T>("FFTW MEASURE", shape, FFTW_MEASURE), fftw<T>("FFTW PATIENT", shape, FFTW_PATIENT),
            avTx<T>(shape), kiss<T>(shape)};
}

template std::vector<Contender> peersOf<float>(Shape shape);
template std::vector<Contender> peersOf<double>(Shape shape);

} // namespace zors::bench
