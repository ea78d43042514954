// The step that halves the longest transforms, of which no test has the memory: at orders that one has.
#include "transform/halves.h"

#include "transform/samples.h"

#include <gtest/gtest.h>

namespace zors::ZORS_VARIANT {
namespace {

using test::Memory;

// A transform of 2^order points by two of half the length, with the table of its own or of twice its order.
void expectHalves(int order, int tableOrder)
{
    test::Random random;
    const test::Side side{test::Format::pairs, test::Number::float64};
    const std::size_t n = std::size_t{1} << order, bytes = side.bytes(n);
    Memory in(bytes), out(bytes), room(bytes / 2);
    const auto numbers = test::randomNumbers(side, n, random);
    test::writeNumbers(numbers, side.number, in.get());

    std::vector<double> quarter((std::size_t{1} << tableOrder) / 4 + 1);
    fillQuarterWave(tableOrder, quarter.data());
    std::vector<double> table(2 * static_cast<std::size_t>(outerHalves(tableOrder) + innerHalves));
    fillHalves(tableOrder, Wave<double>(tableOrder, quarter.data()), table.data());

    auto* dst = static_cast<double*>(out.get());
    const PairedArrays<double, false> io{static_cast<const double*>(in.get()), dst};
    halve(order, tableOrder, io, table.data());
    const test::Spec spec(test::kind("C_64fc"), order - 1);
    for (double* half : {dst, dst + n})
        ASSERT_EQ(zorsFFTFwd_CToC_64fc_I(reinterpret_cast<Zor64fc*>(half),
                                         static_cast<const ZorsFFTSpec_C_64fc*>(spec.get()), nullptr),
                  zorStsOk);
    shuffleHalves(io, static_cast<std::ptrdiff_t>(n), static_cast<double*>(room.get()));

    test::RelativeError error;
    error.add(test::pointsFrom(test::readNumbers(dst, side.number, 2 * n), side.format, n),
              test::dft(test::pointsFrom(numbers, side.format, n)));
    EXPECT_LT(error.value(), 0.4 * std::numeric_limits<double>::epsilon() * std::sqrt(order));
}

TEST(Halves, MakeTheWhole)
{
    expectHalves(14, 14);
    expectHalves(15, 15);
    expectHalves(14, 15);
}

} // namespace
} // namespace zors::ZORS_VARIANT
