// The work buffer of one call: the caller's, aligned, or one that lives as long as the call.
#pragma once

#include "record.h"

#include <zorcore.h>

namespace zors::ZORS_VARIANT {

class Work {
public:
    Work(int bytes, Zor8u* pBuffer)
    {
        if (bytes < 1) return;
        if (!pBuffer) own_ = static_cast<Zor8u*>(zorMalloc(bytes));
        memory_ = pBuffer ? aligned(pBuffer) : own_;
        missing_ = !memory_;
    }
    ~Work()
    {
        if (own_) zorFree(own_);
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    bool missing() const { return missing_; }
    Zor8u* memory() const { return memory_; }
    template <class T>
    T* as() const
    {
        return reinterpret_cast<T*>(memory_);
    }

private:
    Zor8u* own_ = nullptr;
    Zor8u* memory_ = nullptr;
    bool missing_ = false;
};

} // namespace zors::ZORS_VARIANT
