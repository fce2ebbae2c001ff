// The heap, where the C library lets a program have its say; elsewhere these do nothing.
#pragma once

namespace selvane {

// Threads that live for a moment need no heaps of their own. To be called before the first one.
void ShareOneHeap();

// What was needed for a moment goes back to the machine.
void ReturnFreeMemory();

} // namespace selvane
