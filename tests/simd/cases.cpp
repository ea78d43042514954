#include "cases.h"

#include "expect.h"

#include <gtest/gtest.h>
#include <string>

namespace zors::test {
namespace {

using namespace ZORS_VARIANT;

void report(const testing::Message& message, Where where)
{
    ADD_FAILURE_AT(where.file, where.line) << message;
}

std::string text(Places places)
{
    std::string all;
    for (const std::ptrdiff_t place : places) all += " at " + std::to_string(place);
    return all;
}

TEST(Loop, BlocksCoverEachElementOnce)
{
    blocksCoverEachElementOnce();
}
TEST(Loop, BlocksIntoStreamLongDestinations)
{
    blocksIntoStreamLongDestinations();
}
TEST(Loop, BlocksIntoStreamOnlyWhatReachesAlignedAddresses)
{
    blocksIntoStreamOnlyWhatReachesAlignedAddresses();
}
TEST(Loop, PlacesLoadAndStoreWhatTheyCover)
{
    placesLoadAndStoreWhatTheyCover();
}
TEST(Memory, PartsTouchTheirLanesAndNoOthers)
{
    partsTouchTheirLanesAndNoOthers();
}
TEST(Memory, StreamingStoresAVector)
{
    streamingStoresAVector();
}
TEST(Shuffle, PermutesInterleavesAndSwaps)
{
    permutesInterleavesAndSwaps();
}
TEST(Shuffle, ReversesElementsOfEverySize)
{
    reversesElementsOfEverySize();
}
TEST(Bytes24, LoadsAndStoresThreeBytesALane)
{
    loadsAndStoresThreeBytesALane();
}
TEST(Complex, LoadsAndStoresPairs)
{
    loadsAndStoresPairs();
}

} // namespace

void fail(Places places, Where where)
{
    report(testing::Message() << "does not hold" << text(places), where);
}

void failEqual(double got, double want, Places places, Where where)
{
    report(testing::Message() << got << ", not " << want << text(places), where);
}

} // namespace zors::test
