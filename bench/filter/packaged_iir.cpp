#include "filter/packaged_iir.h"

#include <complex>
#include <liquid/liquid.h>

namespace zors::bench {
namespace {

using Complex = std::complex<float>;

// A section or an order at a time its numerator, and its denominator from a0 on.
template <class C, class H, class Handle>
auto liquidFilter(const IirFilter<H>& filter, Handle (*create)(C*, unsigned, C*, unsigned),
                  Handle (*createSections)(C*, C*, unsigned), int (*destroy)(Handle))
{
    std::vector<C> numerators, denominators;
    const auto taps = reinterpret_cast<const C*>(filter.taps.data());
    const auto each = filter.order + 1;
    for (int s = 0; s < filter.sections; ++s) {
        const C* of = taps + 2 * each * s;
        numerators.insert(numerators.end(), of, of + each);
        denominators.insert(denominators.end(), of + each, of + 2 * each);
    }
    const auto count = static_cast<unsigned>(each);
    Handle made = filter.order == 2 ? createSections(numerators.data(), denominators.data(),
                                                     static_cast<unsigned>(filter.sections))
                                    : create(numerators.data(), count, denominators.data(), count);
    if (!made) fail("liquid-dsp", "makes no filter");
    return std::shared_ptr<std::remove_pointer_t<Handle>>(made, destroy);
}

auto liquidFilter(const IirFilter<Zor32f>& filter)
{
    return liquidFilter<float>(filter, iirfilt_rrrf_create, iirfilt_rrrf_create_sos, iirfilt_rrrf_destroy);
}

} // namespace

IirMaker<Zor32f, Zor32f> liquidIir32f()
{
    return {"iirfilt", [](const IirFilter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block);
                return {in, out, [=, made = liquidFilter(filter)] {
                            iirfilt_rrrf_execute_block(made.get(), in.get(), static_cast<unsigned>(block),
                                                       out.get());
                        }};
            }};
}

IirMaker<Zor32fc, Zor32fc> liquidIir32fc()
{
    return {"iirfilt", [](const IirFilter<Zor32fc>& filter, int block) -> Stream<Zor32fc> {
                const auto in = vector<Zor32fc>(block), out = vector<Zor32fc>(block);
                const auto made = liquidFilter<Complex>(filter, iirfilt_cccf_create, iirfilt_cccf_create_sos,
                                                        iirfilt_cccf_destroy);
                return {in, out, [=] {
                            iirfilt_cccf_execute_block(made.get(), reinterpret_cast<Complex*>(in.get()),
                                                       static_cast<unsigned>(block),
                                                       reinterpret_cast<Complex*>(out.get()));
                        }};
            }};
}

IirMaker<Zor32f, Zor32f> liquidIirOne()
{
    return {"iirfilt", [](const IirFilter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block);
                return {in, out, [=, made = liquidFilter(filter)] {
                            for (int i = 0; i < block; ++i)
                                iirfilt_rrrf_execute(made.get(), in[i], out.get() + i);
                        }};
            }};
}

} // namespace zors::bench
