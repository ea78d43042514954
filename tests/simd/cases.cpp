#include "cases.h"

#include "expect.h"

#include <gtest/gtest.h>

namespace zors::test {
namespace {

using namespace ZORS_VARIANT;

void report(const testing::Message& message, std::source_location where)
{
    ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << message;
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

void fail(Places places, std::source_location where)
{
    report(testing::Message() << where.function_name() << text(places), where);
}

void failEqual(double got, double want, Places places, std::source_location where)
{
    report(testing::Message() << got << ", not " << want << ", " << where.function_name() << text(places),
           where);
}

} // namespace zors::test
