// Our transforms as contenders, with a record and a work buffer of their own.
#pragma once

#include "transform/data.h"

#include <cstdlib>
#include <zors.h>

namespace zors::bench {

// On vectors of numbers of type T; sizeOf(n) is what the initialisation takes, an order or the length.
template <class T, class Spec, class C>
Contender ours(Shape shape, int (*sizeOf)(int n), ZorStatus (*init)(Spec**, int, int, ZorHintAlgorithm),
               ZorStatus (*free)(Spec*), ZorStatus (*getBufSize)(const Spec*, int*),
               ZorStatus (*run)(const C*, C*, const Spec*, Zor8u*))
{
    return {"zors", [=](int n) -> Operation {
                Spec* made = nullptr;
                int size = 0;
                if (init(&made, sizeOf(n), ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY) != zorStsOk ||
                    getBufSize(made, &size) != zorStsOk)
                    std::abort();
                const std::shared_ptr<Spec> spec(made, free);
                const auto work = size > 0 ? vector<Zor8u>(size) : nullptr;
                return [=, in = randomData<T>(shape, n), out = randomData<T>(shape, n)] {
                    run(reinterpret_cast<const C*>(in.get()), reinterpret_cast<C*>(out.get()), spec.get(),
                        work.get());
                };
            }};
}

template <class T>
void against(const std::string& operation, Shape shape, const std::vector<int>& lengths,
             const Contender& contender)
{
    auto contenders = peersOf<T>(shape);
    contenders.insert(contenders.begin(), contender);
    compare(operation, lengths, contenders);
}

} // namespace zors::bench
