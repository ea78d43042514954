// The kinds of records behind one interface each, so that a test can go through all of them.
#pragma once

#include <zors.h>

#include <string>
#include <vector>

namespace zors::test {

struct Sizes {
    int spec, init, work;

    bool operator==(const Sizes&) const = default;
};

struct Kind {
    std::string name;
    Zor32u tag;
    int mostOrder;
    ZorStatus (*getSize)(int order, int flag, ZorHintAlgorithm hint, int* pSpec, int* pInit, int* pWork);
    ZorStatus (*init)(void** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpec, Zor8u* pInit);
    ZorStatus (*initAlloc)(void** ppSpec, int order, int flag, ZorHintAlgorithm hint);
    ZorStatus (*free)(void* pSpec);
    ZorStatus (*getBufSize)(const void* pSpec, int* pSize);
};

const std::vector<Kind>& kinds();
const Kind& kind(const std::string& name);

// Those of any length, which they take in the place of an order.
const std::vector<Kind>& kindsOfAnyLength();
const Kind& kindOfAnyLength(const std::string& name);

// The sizes of a kind that must exist.
Sizes sizesOf(const Kind& kind, int order, int flag = ZOR_FFT_SCALE_NONE);

// A record of the library's, released at the end.
class Spec {
public:
    Spec(const Kind& kind, int order, int flag = ZOR_FFT_SCALE_NONE);
    ~Spec();
    Spec(const Spec&) = delete;
    Spec& operator=(const Spec&) = delete;

    void* get() const { return spec_; }

private:
    const Kind& kind_;
    void* spec_ = nullptr;
};

inline constexpr int flags[] = {ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE};

} // namespace zors::test
