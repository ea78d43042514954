// The tests that are compiled for a variant.
#pragma once

namespace zors::ZORS_VARIANT {

void blocksCoverEachElementOnce();
void blocksIntoStreamLongDestinations();
void blocksIntoStreamOnlyWhatReachesAlignedAddresses();
void placesLoadAndStoreWhatTheyCover();

void partsTouchTheirLanesAndNoOthers();
void streamingStoresAVector();

void permutesInterleavesAndSwaps();
void reversesElementsOfEverySize();
void loadsAndStoresThreeBytesALane();
void loadsAndStoresPairs();

} // namespace zors::ZORS_VARIANT
