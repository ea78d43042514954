// The kinds of recursive filters, each in each of its structures.
#pragma once

#include "filter/kinds.h"

namespace zors::test {

enum class Structure { anyOrder, cascade, directForm1 };

struct IirKind {
    Kind kind; // what single-rate filters have; its lengths are orders, or numbers of sections
    Structure structure;

    bool isCascade() const { return structure != Structure::anyOrder; }
    Element number() const { return {kind.arithmetic, kind.data.parts}; }
    int taps(int count) const { return isCascade() ? 6 * count : 2 * count + 2; }
    int delays(int count) const
    {
        return structure == Structure::anyOrder  ? count
               : structure == Structure::cascade ? 2 * count
                                                 : 4 * count;
    }
};

const std::vector<IirKind>& iirKinds();

} // namespace zors::test
