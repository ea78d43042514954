// All that processes and reads records of a kind, with faults in its arguments.
#pragma once

#include "filter/faults.h"
#include "filter/kinds.h"

namespace zors::test {

// Over a record that is wrong where the last fault says so.
inline void expectOrderOfUse(const Kind& k, void* good, void* bad)
{
    constexpr ZorStatus null = zorStsNullPointer, wrong = zorStsWrongContext, size = zorStsBadSize;
    Untouched src, dst;
    const auto record = [&](unsigned faults, unsigned isNull, unsigned isWrong) {
        return unless(faults & isNull, faults & isWrong ? bad : good);
    };
    expectOrder("blocks", {null, null, null, size, wrong}, [&](unsigned f) {
        return k.run(unless(f & 1, src.get()), unless(f & 2, dst.get()), f & 8 ? -3 : 4, record(f, 4, 16), 0);
    });
    expectOrder("in place", {null, null, size, wrong}, [&](unsigned f) {
        return k.runInPlace(unless(f & 1, dst.get()), f & 4 ? 0 : 4, record(f, 2, 8), 0);
    });
    expectOrder("SetTaps", {null, null, wrong},
                [&](unsigned f) { return k.setTaps(unless(f & 1, src.get()), record(f, 2, 4), 0); });
    if (k.getTaps)
        expectOrder("GetTaps", {null, null, wrong},
                    [&](unsigned f) { return k.getTaps(record(f, 1, 4), unless(f & 2, dst.get()), 0); });
    expectOrder("SetDlyLine", {null, wrong},
                [&](unsigned f) { return k.setDlyLine(record(f, 1, 2), src.get()); });
    expectOrder("GetDlyLine", {null, null, wrong},
                [&](unsigned f) { return k.getDlyLine(record(f, 1, 4), unless(f & 2, dst.get())); });
    expectOrder("Free", {null, wrong}, [&](unsigned f) { return k.free(record(f, 1, 2)); });
    if (!k.one) return;
    expectOrder("one sample", {null, null, wrong},
                [&](unsigned f) { return k.one(src.get(), unless(f & 1, dst.get()), record(f, 2, 4), 0); });
}

} // namespace zors::test
