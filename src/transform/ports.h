// Where the passes of a transform read and write: rows of W complex elements, lanes side by side. Inside, real
// and imaginary parts are apart; the ports at the ends take complex pairs apart and put them together, exchange
// the parts for the inverse, and scale.
#pragma once

#include "butterfly.h"
#include "fan.h"
#include "simd/memory.h"
#include "simd/transpose.h"

#include <cstdint>

namespace zors::ZORS_VARIANT {

// Results of the last pass have their lanes in this order, in which pairs are put together inside blocks of 16 bytes.
template <class T, int W>
constexpr int rowOfLane(int lane)
{
    constexpr int each = lanesOfBlock<Vec<T, W>>, half = each / 2;
    const int block = lane / each, inside = lane % each;
    return block * half + inside % half + (inside < half ? 0 : W / 2);
}

// The columns of a source's lanes. Where the halves of a row are taken one by one, even columns are in the lower half
// and odd ones in the upper.
struct InOrder {
    constexpr int operator()(int lane) const { return lane; }
};
template <int W>
struct EvenFirst {
    constexpr int operator()(int lane) const { return lane % (W / 2) * 2 + lane / (W / 2); }
};
// As pairs are taken apart inside blocks.
template <class T, int W>
struct AsRows {
    constexpr int operator()(int lane) const { return rowOfLane<T, W>(lane); }
};

// How a destination stores: as usual, or past the caches, to whole vectors at addresses aligned to their width.
struct Cached {
    template <int W, class T>
    [[gnu::always_inline]] static void put(T* p, Vec<T, W> v)
    {
        store<W>(p, v);
    }
};
struct Uncached {
    template <int W, class T>
    [[gnu::always_inline]] static void put(T* p, Vec<T, W> v)
    {
        storeStreaming<W>(p, v);
    }
};

// A port is asked for some rows at once: from<R>(row, stride) are R rows, row, row + n, ..., where stride(n) is that
// distance in memory; closeFrom<n>(row) are the same where rows follow one another without a gap. every(n, row) is a
// port to every n-th row.

// In one array, vectors of real and of imaginary parts taking turns.
template <class T, int W, class Store = Cached>
struct Rows {
    T* p;
    std::ptrdiff_t numbers = 2 * W; // from row to row

    template <class At>
    struct Some {
        At at;

        [[gnu::always_inline]] Cx<Vec<T, W>> get(int i) const { return {load<W>(at[i]), load<W>(at[i] + W)}; }
        [[gnu::always_inline]] void put(int i, Cx<Vec<T, W>> v) const
        {
            Store::template put<W>(at[i], v.re);
            Store::template put<W>(at[i] + W, v.im);
        }
    };
    Stride stride(std::ptrdiff_t rows) const { return Stride(rows * numbers * std::ptrdiff_t{sizeof(T)}); }
    template <int R>
    [[gnu::always_inline]] Some<Fan<R, T>> from(std::ptrdiff_t row, const Stride& stride) const
    {
        return {{p + row * numbers, stride}};
    }
    template <int Step>
    [[gnu::always_inline]] Some<Fixed<2 * Step * W, T>> closeFrom(std::ptrdiff_t row) const
    {
        return {{p + row * 2 * W}};
    }
    const T* address() const { return p; }
    Rows every(std::ptrdiff_t step, std::ptrdiff_t first) const
    {
        return {p + first * numbers, step * numbers};
    }
};

// In two arrays. The distance of rows is that of two columns. Order is for sources, Store for destinations.
template <class T, int W, class Order = InOrder, class Store = Cached>
struct Apart {
    T* re;
    T* im;
    std::ptrdiff_t numbers; // from row to row

    template <class At>
    struct Some {
        At re, im;

        [[gnu::always_inline]] Cx<Vec<T, W>> get(int i) const
        {
            return {permute<Order>(load<W>(re[i])), permute<Order>(load<W>(im[i]))};
        }
        [[gnu::always_inline]] void put(int i, Cx<Vec<T, W>> v) const
        {
            Store::template put<W>(re[i], v.re);
            Store::template put<W>(im[i], v.im);
        }
        [[gnu::always_inline]] void putTurned(int i, Cx<Vec<T, W>> v) const
        {
            put(i, {permute<LaneOfRow>(v.re), permute<LaneOfRow>(v.im)});
        }

        struct LaneOfRow {
            constexpr int operator()(int row) const
            {
                int lane = 0;
                while (rowOfLane<T, W>(lane) != row) ++lane;
                return lane;
            }
        };
    };
    Stride stride(std::ptrdiff_t rows) const { return Stride(rows * numbers * std::ptrdiff_t{sizeof(T)}); }
    template <int R>
    [[gnu::always_inline]] Some<Fan<R, T>> from(std::ptrdiff_t row, const Stride& stride) const
    {
        return {{re + row * numbers, stride}, {im + row * numbers, stride}};
    }
    template <int Step>
    [[gnu::always_inline]] Some<Fixed<Step * W, T>> closeFrom(std::ptrdiff_t row) const
    {
        return {{re + row * W}, {im + row * W}};
    }
    const T* address() const { return re; }
    Apart every(std::ptrdiff_t step, std::ptrdiff_t first) const
    {
        return {re + first * numbers, im + first * numbers, step * numbers};
    }
};

// Complex pairs. Swapped exchanges the parts, which turns the forward transform into the inverse.
template <class T, int W, bool Swapped, class Order = InOrder, class Store = Cached>
struct Pairs {
    T* p;
    std::ptrdiff_t numbers; // from row to row

    template <class At>
    struct Some {
        At at;

        [[gnu::always_inline]] Cx<Vec<T, W>> get(int i) const
        {
            const auto v = apart(load<W>(at[i]), load<W>(at[i] + W));
            return Swapped ? Cx<Vec<T, W>>{v.second, v.first} : Cx<Vec<T, W>>{v.first, v.second};
        }
        [[gnu::always_inline]] void put(int i, Cx<Vec<T, W>> v) const
        {
            const auto w = Swapped ? interleave(v.im, v.re) : interleave(v.re, v.im);
            Store::template put<W>(at[i], w.first);
            Store::template put<W>(at[i] + W, w.second);
        }
        [[gnu::always_inline]] void putTurned(int i, Cx<Vec<T, W>> v) const
        {
            auto a = Swapped ? v.im : v.re, b = Swapped ? v.re : v.im;
            unpack(a, b);
            store<W>(at[i], a);
            store<W>(at[i] + W, b);
        }

        static Pair<Vec<T, W>> apart(Vec<T, W> a, Vec<T, W> b)
        {
            struct Re {
                constexpr int operator()(int i) const { return 2 * Order{}(i); }
            };
            struct Im {
                constexpr int operator()(int i) const { return Re{}(i) + 1; }
            };
            if constexpr (std::is_same_v<Order, InOrder>)
                return deinterleave(a, b);
            else
                return {permute<Re>(a, b), permute<Im>(a, b)};
        }
    };
    Stride stride(std::ptrdiff_t rows) const { return Stride(rows * numbers * std::ptrdiff_t{sizeof(T)}); }
    template <int R>
    [[gnu::always_inline]] Some<Fan<R, T>> from(std::ptrdiff_t row, const Stride& stride) const
    {
        return {{p + row * numbers, stride}};
    }
    template <int Step>
    [[gnu::always_inline]] Some<Fixed<2 * Step * W, T>> closeFrom(std::ptrdiff_t row) const
    {
        return {{p + row * 2 * W}};
    }
    const T* address() const { return p; }
    Pairs every(std::ptrdiff_t step, std::ptrdiff_t first) const
    {
        return {p + first * numbers, step * numbers};
    }
};

// A destination that multiplies by a factor.
template <class T, class Out>
struct Scaled {
    Out out;
    T factor;

    template <class Rows>
    struct Some {
        Rows rows;
        T factor;

        template <class V>
        [[gnu::always_inline]] void put(int i, Cx<V> v) const
        {
            rows.put(i, {v.re * factor, v.im * factor});
        }
        template <class V>
        [[gnu::always_inline]] void putTurned(int i, Cx<V> v) const
        {
            rows.putTurned(i, {v.re * factor, v.im * factor});
        }
    };
    Stride stride(std::ptrdiff_t rows) const { return out.stride(rows); }
    template <int R>
    [[gnu::always_inline]] auto from(std::ptrdiff_t row, const Stride& stride) const
    {
        return scaled(out.template from<R>(row, stride));
    }
    template <int Step>
    [[gnu::always_inline]] auto closeFrom(std::ptrdiff_t row) const
    {
        return scaled(out.template closeFrom<Step>(row));
    }
    Scaled every(std::ptrdiff_t step, std::ptrdiff_t first) const { return {out.every(step, first), factor}; }
    template <class Rows>
    [[gnu::always_inline]] Some<Rows> scaled(Rows rows) const
    {
        return {rows, factor};
    }
};

// run(sink), which multiplies by the factor where there is one.
template <class T, class Sink, class Run>
inline void scaledBy(const T* factor, const Sink& sink, const Run& run)
{
    if (factor)
        run(Scaled<T, Sink>{sink, *factor});
    else
        run(sink);
}

// What a caller hands over: N complex pairs, or two arrays of N numbers. The inverse of the latter is the forward
// transform with real and imaginary arrays in exchanged places.
template <class T, bool Swapped>
struct PairedArrays {
    const T* src;
    T* dst;

    Cx<T> get(std::ptrdiff_t i) const
    {
        return Swapped ? Cx<T>{src[2 * i + 1], src[2 * i]} : Cx<T>{src[2 * i], src[2 * i + 1]};
    }
    void put(std::ptrdiff_t i, Cx<T> v) const
    {
        dst[2 * i] = Swapped ? v.im : v.re;
        dst[2 * i + 1] = Swapped ? v.re : v.im;
    }
    template <int W, class Order = InOrder>
    Pairs<T, W, Swapped, Order> source(std::ptrdiff_t stride = W, std::ptrdiff_t first = 0) const
    {
        return {const_cast<T*>(src) + 2 * first, 2 * stride};
    }
    template <int W, class Store = Cached>
    Pairs<T, W, Swapped, InOrder, Store> sink(std::ptrdiff_t stride = W, std::ptrdiff_t first = 0) const
    {
        return {dst + 2 * first, 2 * stride};
    }
    bool isAligned(std::size_t to) const { return reinterpret_cast<std::uintptr_t>(dst) % to == 0; }
    // The destination as room for rows of any kind.
    template <int W>
    Rows<T, W> room() const
    {
        return {dst};
    }
    PairedArrays onDestination(std::ptrdiff_t first) const { return {dst + 2 * first, dst + 2 * first}; }
};

template <class T>
struct SplitArrays {
    const T* srcRe;
    const T* srcIm;
    T* dstRe;
    T* dstIm;

    Cx<T> get(std::ptrdiff_t i) const { return {srcRe[i], srcIm[i]}; }
    void put(std::ptrdiff_t i, Cx<T> v) const
    {
        dstRe[i] = v.re;
        dstIm[i] = v.im;
    }
    template <int W, class Order = InOrder>
    Apart<T, W, Order> source(std::ptrdiff_t stride = W, std::ptrdiff_t first = 0) const
    {
        return {const_cast<T*>(srcRe) + first, const_cast<T*>(srcIm) + first, stride};
    }
    template <int W, class Store = Cached>
    Apart<T, W, InOrder, Store> sink(std::ptrdiff_t stride = W, std::ptrdiff_t first = 0) const
    {
        return {dstRe + first, dstIm + first, stride};
    }
    bool isAligned(std::size_t to) const
    {
        return (reinterpret_cast<std::uintptr_t>(dstRe) | reinterpret_cast<std::uintptr_t>(dstIm)) % to == 0;
    }
    template <int W>
    Apart<T, W> room() const
    {
        return {dstRe, dstIm, W};
    }
    SplitArrays onDestination(std::ptrdiff_t first) const
    {
        return {dstRe + first, dstIm + first, dstRe + first, dstIm + first};
    }
};

} // namespace zors::ZORS_VARIANT
