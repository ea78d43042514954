// Arithmetic beside plain loops, Eigen and VOLK.
#include "support/calls.h"
#include "vector/plain_arithmetic.h"

#include <volk/volk.h>
#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> lengths = {256, 4096, 65536, 4 << 20};
const Compiled<PlainArithmeticLoops> plain{gcc_loops, clang_loops};

// Our function with a scale factor.
template <auto function, int scaleFactor, class T>
void scaled(const T* a, const T* b, T* d, int n)
{
    function(a, b, d, n, scaleFactor);
}

template <class T, class F>
std::vector<Contender> twoSources(F ours, TwoSources<T> PlainArithmeticLoops::*loop)
{
    return plain.contenders(ours, loop, numbers<T>, numbers<T>, numbers<T>);
}

template <class T, class F>
Contender peer(const char* name, F f)
{
    return contender(name, f, numbers<T>, numbers<T>, numbers<T>);
}

template <class T>
std::vector<Contender> withEigen(std::vector<Contender> some, TwoSources<T> PlainArithmeticLoops::*f)
{
    return with(with(std::move(some), peer<T>("Eigen, g++", gcc_loops.*f)),
                peer<T>("Eigen, clang", clang_loops.*f));
}

// The parts of ours and VOLK's complex numbers are laid out alike.
lv_32fc_t* volkComplex(Zor32fc* p)
{
    return reinterpret_cast<lv_32fc_t*>(p);
}

const lv_32fc_t* volkComplex(const Zor32fc* p)
{
    return reinterpret_cast<const lv_32fc_t*>(p);
}

void registerAll()
{
    using P = PlainArithmeticLoops;
    compare("Add_32f", lengths,
            with(withEigen(twoSources(zorsAdd_32f, &P::add32f), &P::eigenAdd32f),
                 peer<Zor32f>("VOLK", [](const Zor32f* a, const Zor32f* b, Zor32f* d, int n) {
                     volk_32f_x2_add_32f(d, a, b, static_cast<unsigned>(n));
                 })));
    compare("Mul_32f", lengths,
            with(withEigen(twoSources(zorsMul_32f, &P::mul32f), &P::eigenMul32f),
                 peer<Zor32f>("VOLK", [](const Zor32f* a, const Zor32f* b, Zor32f* d, int n) {
                     volk_32f_x2_multiply_32f(d, a, b, static_cast<unsigned>(n));
                 })));
    compare("Div_32f", lengths, twoSources(zorsDiv_32f, &P::div32f));
    compare("AddProduct_32f", lengths, twoSources(zorsAddProduct_32f, &P::addProduct32f));
    compare("MulC_32f", lengths,
            plain.contenders(zorsMulC_32f, &P::mulC32f, numbers<Zor32f>, scalar<Zor32f>, numbers<Zor32f>));
    compare("Add_64f", lengths, twoSources(zorsAdd_64f, &P::add64f));
    compare("Mul_32fc", lengths,
            with(withEigen(twoSources(zorsMul_32fc, &P::mul32fc), &P::eigenMul32fc),
                 peer<Zor32fc>("VOLK", [](const Zor32fc* a, const Zor32fc* b, Zor32fc* d, int n) {
                     volk_32fc_x2_multiply_32fc(volkComplex(d), volkComplex(a), volkComplex(b),
                                                static_cast<unsigned>(n));
                 })));

    compare("Add_16s", lengths, twoSources(zorsAdd_16s, &P::add16s));
    compare("Add_16s_Sfs, scale 1", lengths,
            twoSources(scaled<zorsAdd_16s_Sfs, 1, Zor16s>, &P::addHalved16s));
    compare("Add_8u_Sfs, scale 1", lengths, twoSources(scaled<zorsAdd_8u_Sfs, 1, Zor8u>, &P::addHalved8u));
    compare("Add_32s_Sfs, scale 1", lengths,
            twoSources(scaled<zorsAdd_32s_Sfs, 1, Zor32s>, &P::addHalved32s));
    compare("Mul_16s_Sfs, scale 0", lengths, twoSources(scaled<zorsMul_16s_Sfs, 0, Zor16s>, &P::mul16s));
    compare("Mul_16s_Sfs, scale 15", lengths,
            twoSources(scaled<zorsMul_16s_Sfs, 15, Zor16s>, &P::mulFractional16s));
    compare("Mul_16sc_Sfs, scale 15", lengths,
            twoSources(scaled<zorsMul_16sc_Sfs, 15, Zor16sc>, &P::mulFractional16sc));
    compare("Div_16s_Sfs, scale 0", lengths, twoSources(scaled<zorsDiv_16s_Sfs, 0, Zor16s>, &P::divide16s));
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
